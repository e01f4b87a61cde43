#pragma once

#include "family/users/passwords.hpp"

namespace kova::family::test {

/// What a test can pay for many times.
inline constexpr PasswordCost Cheap{1, 8192};

} // namespace kova::family::test
