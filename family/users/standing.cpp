#include "family/users/standing.hpp"

#include "family/users/idle_lock.hpp"

namespace kova::family {

Standing StandingOf(Database& database, Key user)
{
    Author author;
    author.code = std::to_string(user);
    return {HasUsers(database), IsUser(database, user), DeniedRightsOf(database, author),
            IdleMinutes(database)};
}

} // namespace kova::family
