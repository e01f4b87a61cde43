#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kova::family::csv {

/// A record as a line, its end included (CRLF). Fields with separators, quotes, line breaks or blanks at
/// their ends stand in quotes.
std::string CsvLine(const std::vector<std::string>& fields, char separator);

/// A field that a spreadsheet would calculate (it begins with = + - @ or a tab) with an apostrophe before
/// it, which makes it a text there. Unguarded takes away what Guarded has put, and nothing else.
std::string Guarded(std::string field);
std::string Unguarded(std::string field);

} // namespace kova::family::csv
