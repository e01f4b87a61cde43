#pragma once

#include "family/data/engine/key.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

struct UserWhoEnters {
    Key code = 0;
    std::string name;
};

/// Those who can sign in or take the place of another, by their names: active, in a role, with a password or
/// a PIN. Fails as Database::With.
std::vector<UserWhoEnters> UsersWhoEnter(Database& database);

} // namespace kova::family
