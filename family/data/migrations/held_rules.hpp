#pragma once

#include "family/data/engine/dialect.hpp"

#include <soci/soci.h>

/// The rules that the schema itself holds rows to, from version 6 on. What needs another row to be judged is
/// held by the writes alone. All of them fail with soci::soci_error.
namespace kova::family {

/// What the step to that version holds from then on: the engine refuses rows that break a rule. Rows that do
/// so already stay as they are, until they are written.
void HoldRulesOfVersion(int version, soci::session& session, const Dialect& dialect);

/// Holds all the rules of the version that the schema has.
void HoldRules(soci::session& session, const Dialect& dialect);

/// Takes that back, where it is so; for rows that come from elsewhere as they are.
void LiftRules(soci::session& session, const Dialect& dialect);

} // namespace kova::family
