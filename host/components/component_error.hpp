#pragma once

#include <stdexcept>

namespace kova::host {

/// Why a library or the registry cannot be used: a whole Portuguese sentence for the user, with the file
/// it is about.
class ComponentError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace kova::host
