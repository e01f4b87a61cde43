#pragma once

#include <string>
#include <string_view>

/// What an engine or a library says of a failure in words of its own, mostly English, stands in a line of its
/// own behind the text for the user: those who help find it, and the user need not read it.
namespace kova {

/// The text with that line at its end; "" adds none.
std::string WithDetail(std::string text, std::string_view detail);

/// The text without such lines.
std::string WithoutDetail(std::string_view text);

} // namespace kova
