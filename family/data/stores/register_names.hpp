#pragma once

#include "family/data/rows/rows.hpp"

namespace kova::family {

class Database;

/// "CODE - NAME" of a register's row, the nickname where it has one; the code alone where there is no such
/// row any more, empty for 0. They fail as Database::With.
std::string NamedCustomer(Database& database, Key code);
std::string NamedAnimal(Database& database, Key code);
std::string NamedServiceType(Database& database, Key number);
std::string NamedService(Database& database, Key code);
std::string NamedEmployee(Database& database, Key code);

} // namespace kova::family
