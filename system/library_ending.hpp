#pragma once

#include <string_view>

namespace kova::system {

/// How the files of libraries end, with the point.
std::string_view LibraryEnding();

} // namespace kova::system
