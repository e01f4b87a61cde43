#pragma once

#include "system/user_account.hpp"

namespace kova::host {

/// The full name of an account, or the short one where it has none; "Recepção" where there is no account, or
/// one without a name.
std::string NameOfAccount(const system::UserAccount& account);

/// The name that the computer has for whoever started the program; "Recepção" where it has none.
std::string NameOfThisUser();

} // namespace kova::host
