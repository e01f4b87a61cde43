#pragma once

#include <array>
#include <string>
#include <string_view>

/// Most lines of the audit are of appointments, and most letters of these were the names of columns. So the
/// values of an appointment stand in them under short names, which no column of any table has. Lines of
/// former programs have the columns' own.
namespace kova::family {

/// The name under which a line about a row of the table keeps the column.
std::string_view NameInLine(std::string_view table, std::string_view column);

/// The column that is kept under such a name; the name itself where it is none of the short ones.
std::string_view ColumnOfName(std::string_view name);

/// How what stands behind the names under which lines keep a column of appointments begins: `"name":`, the
/// short one first.
std::array<std::string, 2> BeginningsOf(std::string_view column);

} // namespace kova::family
