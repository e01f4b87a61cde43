#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/engine/long_work.hpp"
#include "family/data/rows/table_layouts.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// Copies a database of one moment into a new file, while others go on writing. The file gets its name only
/// after a trial restore has found in it all the rows of that moment. Answers them. Never replaces a file.
/// Fails with a DatabaseFailure, and leaves no file then.
std::vector<TableCount> BackUpDatabase(const std::string& source, const std::string& file,
                                       const LongWork& work);

/// Makes a new database of a file that BackUpDatabase has made, which may lie where nothing can be written,
/// and tries it before it gets its name. Answers the copy's rows; a line of the audit more tells of the
/// restoration. Never replaces anything. Fails with a DatabaseFailure, and leaves nothing then, but that on a
/// server the line alone may be missing.
std::vector<TableCount> RestoreDatabase(const std::string& file, const std::string& target,
                                        const Author& author, const LongWork& work);

} // namespace kova::family
