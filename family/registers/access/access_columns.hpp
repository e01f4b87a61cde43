#pragma once

#include "family/data/rows/user_rows.hpp"
#include "family/registers/description/column.hpp"
#include "family/users/rights.hpp"

namespace kova::family::registers {

/// A user, without what is secret, and the name of the role.
struct AccountRecord : AccountRow {
    std::string roleName;
};

/// A role with what those who have it may do.
struct RoleRecord : RoleRow {
    Rights rights;
};

namespace access_columns {
inline constexpr const char* Name = "Nome";
inline constexpr const char* RoleOfUser = "Código do papel";
inline constexpr const char* Situation = "Situação";
} // namespace access_columns

const Columns<AccountRecord>& AccountColumns();
/// One for each right behind the name, by its label.
const Columns<RoleRecord>& RoleColumns();

} // namespace kova::family::registers
