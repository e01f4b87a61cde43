#pragma once

#include <string>

namespace kova::host {

/// The name that the computer has for whoever started the program; "Recepção" where it has none.
std::string NameOfThisUser();

} // namespace kova::host
