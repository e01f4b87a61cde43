#pragma once

#include "family/users/user_rights.hpp"

namespace kova::family {

/// What a desk has to know of whoever is at it, as it stands in the data now.
struct Standing {
    bool hasUsers = false;
    /// Whether the user still is one: active, and with a role.
    bool mayEnter = false;
    DeniedRights denied;
    int idleMinutes = 0;

    bool operator==(const Standing&) const = default;
};

/// Fails as Database::With.
Standing StandingOf(Database& database, Key user);

} // namespace kova::family
