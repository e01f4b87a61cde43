#pragma once

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
/// and tries it before it gets its name. Answers its rows. Never replaces anything. Fails with a
/// DatabaseFailure, and leaves nothing then.
std::vector<TableCount> RestoreDatabase(const std::string& file, const std::string& target,
                                        const LongWork& work);

} // namespace kova::family
