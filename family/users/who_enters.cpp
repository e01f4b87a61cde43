#include "family/users/who_enters.hpp"

#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/user_rows.hpp"

#include <algorithm>

namespace kova::family {

std::vector<UserWhoEnters> UsersWhoEnter(Database& database)
{
    std::vector<UserWhoEnters> users;
    SelectRows<AccountRow>(database, [&](const AccountRow& row) {
        if (row.IsActive() && !row.codigoDoPapel.IsNull())
            users.push_back({row.codigo, row.nome});
    });
    std::erase_if(users, [&](const UserWhoEnters& user) {
        const auto secrets = FindByKey<SecretsRow>(database, user.code);
        return !secrets || (secrets->senha.IsNull() && secrets->pin.IsNull());
    });
    std::ranges::sort(users, {}, [](const UserWhoEnters& user) { return FoldText(user.name); });
    return users;
}

} // namespace kova::family
