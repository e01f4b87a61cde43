#pragma once

#include <string>
#include <string_view>

namespace kova::toolkit {

/// A letter without case and accent: "Ç" is "c". What no such letter stands for stays as it is.
char32_t PlainLetter(char32_t character);
std::u32string PlainLetters(std::string_view text);

} // namespace kova::toolkit
