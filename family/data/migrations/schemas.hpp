#pragma once

#include "family/data/engine/dialect.hpp"

#include <soci/soci.h>

#include <string>
#include <vector>

/// The statements of each step of the schema. A step that has once been delivered never changes.
namespace kova::family {

std::vector<std::string> SchemaOfVersion1(const Dialect& dialect);
std::vector<std::string> SchemaOfVersion2(const Dialect& dialect);
std::vector<std::string> SchemaOfVersion3(const Dialect& dialect);
std::vector<std::string> SchemaOfVersion4(const Dialect& dialect);
/// Changes rows alone.
std::vector<std::string> SchemaOfVersion5(const Dialect& dialect);
/// Writes the folded texts that the rows keep where they are not what is folded of their texts today.
void FoldTextsAnew(soci::session& session, const Dialect& dialect);
std::vector<std::string> SchemaOfVersion6(const Dialect& dialect);
/// Holds the rows of the tables there are then to their rules (held_rules.hpp).
void HoldRulesOfVersion6(soci::session& session, const Dialect& dialect);
std::vector<std::string> SchemaOfVersion7(const Dialect& dialect);
/// Opening hours, employees' hours and absences; open from Monday to Saturday at all hours.
std::vector<std::string> SchemaOfVersion8(const Dialect& dialect);
/// Holds their rows to their rules.
void HoldRulesOfVersion8(soci::session& session, const Dialect& dialect);
/// Roles with their rights, users' roles and passwords, and wrong tries to sign in; three roles, and nobody
/// who has one.
std::vector<std::string> SchemaOfVersion9(const Dialect& dialect);
/// Holds their rows to their rules.
void HoldRulesOfVersion9(soci::session& session, const Dialect& dialect);
/// The chain of the audit (chained_audit.hpp).
std::vector<std::string> SchemaOfVersion10(const Dialect& dialect);
/// Links the lines that are there already.
void ChainLinesOfVersion10(soci::session& session, const Dialect& dialect);
/// What the lines of the audit are found by: their day, their user, their kind, their table, and the words
/// among what they tell.
std::vector<std::string> SchemaOfVersion11(const Dialect& dialect);
/// What a shop is set to for all its desks, and that a demonstration is one.
std::vector<std::string> SchemaOfVersion12(const Dialect& dialect);
/// Holds its rows to their rules.
void HoldRulesOfVersion12(soci::session& session, const Dialect& dialect);
/// Keeps the audit small: no index has what nearly all lines have, and links are shorter from then on.
std::vector<std::string> SchemaOfVersion13(const Dialect& dialect);
/// The waiting list.
std::vector<std::string> SchemaOfVersion14(const Dialect& dialect);
/// Holds its rows to their rules.
void HoldRulesOfVersion14(soci::session& session, const Dialect& dialect);
/// A server tells its desks that something was written.
std::vector<std::string> SchemaOfVersion15(const Dialect& dialect);

} // namespace kova::family
