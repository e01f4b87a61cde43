#pragma once

#include "family/data/rows/table_layouts.hpp"

namespace kova::family {

/// To be called after rows were written with keys of the caller's: every table's new rows are numbered on
/// behind its highest. Fails with a DatabaseFailure.
void NumberOn(Database& database);

/// The highest number that a row of the table has ever borne, also one that is gone; 0 where there was
/// none. Fails with soci::soci_error.
long long LastNumber(Database& database, const StoredTable& table);

/// Has the engine number the table's next new row one higher than `last`. Fails with soci::soci_error.
void NumberOnAfter(Database& database, const StoredTable& table, long long last);

} // namespace kova::family
