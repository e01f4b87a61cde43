#pragma once

#include "family/data/engine/long_work.hpp"
#include "family/data/rows/table_layouts.hpp"

namespace kova::family {

/// Opens a finished copy as a shop would, walks through all of it, and fails with a DatabaseFailure where
/// it is damaged, a reference leads nowhere, or it does not hold `expected`. Answers the rows it holds. What
/// the system remembers of the file is forgotten before, so that the disk itself answers.
std::vector<TableCount> TrialRestore(const std::string& path, const LongWork& work);
void TrialRestore(const std::string& path, const std::vector<TableCount>& expected, const LongWork& work);

/// The same of a copy that is only to be as good as its original: references may lead nowhere.
void TryCopy(const std::string& path, const std::vector<TableCount>& expected);

} // namespace kova::family
