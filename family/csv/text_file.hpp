#pragma once

#include "family/csv/encoding.hpp"

namespace kova::family::csv {

/// What stands in a file.
struct FileText {
    /// In UTF-8, without a byte order mark.
    std::string text;
    /// The one it was read in.
    Encoding encoding;
};

/// The whole text of a file. Without an encoding: UTF-8 where all of it is, Latin-1 where nothing in it looks
/// like UTF-8. Throws std::runtime_error, in Portuguese with the path, where the file cannot be read or is no
/// text, or not in the encoding asked for; where it is UTF-8 but for some bytes the line is named, as each
/// accent would become other characters in another encoding.
FileText ReadTextFile(const std::string& path, std::optional<Encoding> encoding);

} // namespace kova::family::csv
