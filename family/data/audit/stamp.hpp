#pragma once

#include "family/data/audit/author.hpp"

/// When something was written. Desks of a server stamp by its clock, as it was when the writing transaction
/// that is open began, since their own may be wrong; a clock that was set on purpose goes before it, and so
/// does the computer's where the data lie in a file.
namespace kova::family {

class Database;

/// As rows bear it: "yyyy-mm-dd hh:mm:ss", a server's in the time zone that it has.
std::string StampOfRow(const Database& database, const Author& author);

/// As the audit bears it: the same, a server's with its distance from Greenwich, "-03:00", behind it.
std::string StampOfLine(const Database& database, const Author& author);

} // namespace kova::family
