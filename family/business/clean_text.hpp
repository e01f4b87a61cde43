#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::family {

/// A typed text as it is kept: pasted line breaks and other control characters are blanks, none stand at
/// its ends, and it has at most `width` characters.
Text CleanText(std::string_view typed, std::size_t width);

} // namespace kova::family
