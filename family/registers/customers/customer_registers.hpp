#pragma once

#include "family/registers/description/register.hpp"

namespace kova::family::registers {

const Register& CustomerRegister();
const Register& AnimalRegister();

} // namespace kova::family::registers
