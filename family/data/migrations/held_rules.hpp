#pragma once

#include "family/data/engine/dialect.hpp"

#include <soci/soci.h>

/// The rules that the schema itself holds rows to, from version 6 on. What needs another row to be judged is
/// held by the writes alone.
namespace kova::family {

inline constexpr int FirstVersionWithRules = 6;

/// From now on the engine refuses rows that break a rule. Rows that do so already stay as they are, until
/// they are written. Fails with soci::soci_error.
void HoldRules(soci::session& session, const Dialect& dialect);

/// Takes that back, where it is so; for rows that come from elsewhere as they are. Fails with
/// soci::soci_error.
void LiftRules(soci::session& session, const Dialect& dialect);

} // namespace kova::family
