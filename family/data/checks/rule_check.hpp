#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/long_work.hpp"

#include <functional>
#include <string>
#include <vector>

namespace kova::family {

/// A Portuguese line for each row that breaks a rule which the writes hold to: its table, its number and
/// what is wrong. Such rows come from outside, by an import or another program. Reads only, in pages: what
/// others write meanwhile may be in a later page, unless a Snapshot is open. `work` follows the passes over
/// the tables that it takes. Fails with soci::soci_error.
std::vector<std::string> FindBrokenRules(Database& database, DateTime now, const LongWork& work = {});

/// Called after each pass.
using Passed = std::function<void()>;

/// The parts of it. Rows that refer to nothing, or whose statuses or kinds are impossible.
void FindBrokenRows(
    Database& database, std::vector<std::string>& problems, const Passed& passed = [] {});
int PassesOverRows();
/// Texts that should be dates, times or moments, and names that a search would not find.
void FindBrokenTexts(
    Database& database, std::vector<std::string>& problems, const Passed& passed = [] {});
int PassesOverTexts();
/// Appointments beyond the number that their employee can have at the same time. What is over by then stays
/// as it was: an import brings it in so.
void FindAppointmentsWithoutRoom(Database& database, DateTime now, std::vector<std::string>& problems);

} // namespace kova::family
