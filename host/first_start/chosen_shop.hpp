#pragma once

#include <string>

namespace kova::host {

/// The shop to work with.
struct ChosenShop {
    /// Where it lies: a path, or an address on a server.
    std::string source;
    /// Lets in whoever has just made it, once, who has given a name and a password for it a moment ago
    /// (family/users/kept_sign_in.hpp); "" where somebody else must say who it is.
    std::string entry;
};

} // namespace kova::host
