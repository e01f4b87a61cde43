#pragma once

#include "family/data/rows/rows.hpp"

namespace kova::family {

class Database;

/// The company of every fictional shop. Nobody has its number.
CompanyRow FictionalCompany();

/// A shop gets the mark where it is made.
void MarkAsFictional(Database& database);

/// Whether the shop is a fictional one: by the mark, and by its company, which somebody who goes on to work
/// with the shop puts another in the place of. Fails as Database::With.
bool IsFictional(Database& database);

} // namespace kova::family
