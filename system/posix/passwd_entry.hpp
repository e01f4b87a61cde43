#pragma once

#include "system/user_account.hpp"

struct passwd;

namespace kova::system {

/// What an entry of the accounts' register says; null says nothing.
UserAccount AccountOf(const passwd* entry);

} // namespace kova::system
