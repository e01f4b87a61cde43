#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/long_work.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// Whether the audit is as it was written: a Portuguese line about the first of its lines that was changed,
/// taken out, put elsewhere or added by hand, and how many more there are; nothing where it is whole. What an
/// anonymisation has cleaned is as it should be. A schema without a chain has nothing to look at. Reads only,
/// in pages; see FindBrokenRules. What was archived is proved with the archive (family/data/archive/), and
/// without it the rest is. Fails with soci::soci_error, or with Interrupted where a stop is asked for.
std::vector<std::string> FindBrokenChain(Database& database, const LongWork& work = {},
                                         Database* archive = nullptr);

} // namespace kova::family
