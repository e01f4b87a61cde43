#pragma once

#include "family/data/engine/key.hpp"

#include <string>

namespace kova::family {

/// The last lines of the audit that this library or program has written itself, whoever was at the desk and
/// over whichever connection: by its user and its computer alone a line is not told from those that another
/// window on the same computer writes. What was taken back stays among them, and in a file its code may
/// become another desk's: whoever asks looks at the line's computer too. For any thread.
struct OwnLine {
    Key code = 0;
    std::string table;
    Key key = 0;

    bool operator==(const OwnLine&) const = default;
};

/// `source` as Database::Path tells it.
void NoteOwnLine(const std::string& source, OwnLine line);
bool IsOwnLine(const std::string& source, const OwnLine& line);

} // namespace kova::family
