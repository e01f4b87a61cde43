#pragma once

#include "family/data/engine/long_work.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "tools/agenda-data/progress.hpp"

#include <memory>

namespace kova::data {

/// Long work whose progress is told on the stream, in lines that begin with `what`.
family::LongWork ShownWork(std::ostream& output, const std::string& what);

/// The same where there is more to do than that; less is done before anybody asks how far it is.
family::LongWork LongWorkOf(std::ostream& output, const std::string& what, long long withoutProgress);

/// One line for each table: its name and its rows.
void WriteCounts(std::ostream& output, const std::vector<family::TableCount>& counts);

} // namespace kova::data
