#pragma once

#include <string>
#include <string_view>

namespace kova::system {

/// UTF-8 from the system's own characters, and back. What is no text of its kind becomes U+FFFD.
std::string Narrow(std::wstring_view text);
std::wstring Wide(std::string_view text);

} // namespace kova::system
