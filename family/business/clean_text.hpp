#pragma once

#include "agenda/contracts/value.hpp"

#include <limits>

namespace kova::family {

/// A typed text as it is kept: pasted line breaks and other control characters are blanks, none stand at
/// its ends, and it has at most `width` characters. A byte that belongs to none is the replacement character.
Text CleanText(std::string_view typed, std::size_t width = std::numeric_limits<std::size_t>::max());

} // namespace kova::family
