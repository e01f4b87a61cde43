#pragma once

#include <string>

namespace kova::system {

/// Whom the computer knows a process by.
struct UserAccount {
    /// The name that the user logs in with; "" where the process runs without an account.
    std::string name;
    /// The person's; "" where the computer does not know it.
    std::string fullName;
};

/// The account of whoever started the program.
UserAccount ThisUser();

} // namespace kova::system
