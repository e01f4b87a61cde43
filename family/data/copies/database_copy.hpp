#pragma once

#include "family/data/engine/long_work.hpp"
#include "family/data/rows/table_layouts.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// Copies a database of one moment, row by row, into a new file or into a server's database that is empty,
/// from either engine to either. What was written is read again and compared before it counts. Answers the
/// rows. The source has to be of the newest schema. Fails with a DatabaseFailure, and leaves nothing then.
std::vector<TableCount> CopyDatabase(const std::string& source, const std::string& target,
                                     const LongWork& work);

/// The same into a new file with the source's own schema, which may be older.
std::vector<TableCount> CopyAsItIs(const std::string& source, const std::string& file, const LongWork& work);

} // namespace kova::family
