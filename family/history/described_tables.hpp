#pragma once

#include "family/registers/description/register.hpp"

/// The registers with those that tell who may do what.
namespace kova::family::history {

/// The one whose rows that table has; nothing where there is none.
const registers::Register* DescribedTable(std::string_view table);
/// The one that is called so; nothing where there is none.
const registers::Register* DescribedName(std::string_view name);

} // namespace kova::family::history
