#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/long_work.hpp"
#include "family/data/rows/table_layouts.hpp"

namespace kova::family {

/// Copies an SQLite database, as it is at one moment, into the file at `path`, which is empty or not there,
/// while others go on writing. Answers the rows of that moment. The copy needs no log file beside it. Fails
/// with a DatabaseFailure.
std::vector<TableCount> CopyOnline(Database& source, const std::string& path, const LongWork& work);

/// While it lives, what a connection to SQLite does ends with a failure once a stop is asked for.
class InterruptOnStop {
public:
    InterruptOnStop(Database& database, const std::stop_token& stop);
    ~InterruptOnStop();
    InterruptOnStop(const InterruptOnStop&) = delete;
    InterruptOnStop& operator=(const InterruptOnStop&) = delete;

private:
    Database& database_;
    std::stop_token stop_;
};

} // namespace kova::family
