#pragma once

#include "family/registers/customers/customer_registers.hpp"
#include "family/registers/shop/shop_registers.hpp"
#include "family/registers/shop/work_registers.hpp"

namespace kova::family::registers {

/// All of them, in the order in which people look for them.
std::span<const Register* const> Registers();

/// The one of that name ("clientes"); nothing where there is none.
const Register* RegisterNamed(std::string_view name);

/// The one whose rows that table has; nothing where there is none.
const Register* RegisterOfTable(std::string_view table);

} // namespace kova::family::registers
