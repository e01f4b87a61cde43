#pragma once

#include "family/registers/description/register.hpp"

/// The registers that tell who may do what. Both are written by those who administer users alone, and nobody
/// can take the right to from the last of them.
namespace kova::family::registers {

/// Users, without their passwords and PINs (family/users/accounts.hpp).
const Register& UserRegister();
/// Roles, with a field for each right.
const Register& RoleRegister();

} // namespace kova::family::registers
