#pragma once

#include <string_view>

namespace kova::system {

/// How the files of libraries begin, "" where they begin with their names, and how they end, with the point.
std::string_view LibraryBeginning();
std::string_view LibraryEnding();

} // namespace kova::system
