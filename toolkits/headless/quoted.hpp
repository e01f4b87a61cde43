#pragma once

#include "agenda/contracts/value.hpp"

#include <string_view>

namespace kova::headless {

/// A text in double quotes, with \" \\ \r \n for the characters that a line of a log cannot hold.
Text Quoted(std::string_view text);

} // namespace kova::headless
