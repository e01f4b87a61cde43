#pragma once

#include "family/data/rows/rows.hpp"

namespace kova::family {

class Database;

/// The company of every fictional shop. Nobody has its number.
CompanyRow FictionalCompany();

/// Whether the shop is a fictional one, by its company. Fails as Database::With.
bool IsFictional(Database& database);

} // namespace kova::family
