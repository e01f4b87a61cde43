#pragma once

#include <string>

struct passwd;

namespace kova::host {

/// The full name of an account, or the short one where it has none; "Recepção" where there is no account, or
/// one without a name.
std::string NameOfAccount(const passwd* account);

/// The name that the computer has for whoever started the program; "Recepção" where it has none.
std::string NameOfThisUser();

} // namespace kova::host
