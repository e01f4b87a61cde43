#include "family/users/user_rights.hpp"

#include "family/data/engine/change_count.hpp"
#include "family/data/engine/database.hpp"

#include <charconv>
#include <map>
#include <memory>

namespace kova::family {

namespace {

struct UserInRole {
    std::string role;
    Rights rights;
};

/// Those who are active and have a role, by their codes.
using UsersInRoles = std::map<Key, UserInRole>;

constexpr const char* ReadAll =
    "select u.codigo, r.nome, coalesce(d.direito, '') from usuario u"
    " join papel r on r.codigo = u.codigo_do_papel left join papel_direito d on d.codigo_do_papel = r.codigo"
    " where u.situacao = 1 order by 1";

class RightsInMemory : public KeptStatement {
public:
    explicit RightsInMemory(Database& database)
        : changes_(database, CountedRights()),
          readAll_((database.Session().prepare << ReadAll, soci::into(user_), soci::into(role_),
                    soci::into(right_)))
    {
    }

    std::shared_ptr<const UsersInRoles> After(std::optional<long long> changes)
    {
        changes_.ReadAgain(changes, [this] { users_ = Read(); });
        return users_;
    }

private:
    std::shared_ptr<const UsersInRoles> Read()
    {
        auto users = std::make_shared<UsersInRoles>();
        readAll_.execute();
        while (readAll_.fetch()) {
            UserInRole& user = (*users)[user_];
            user.role = role_;
            if (const auto right = RightNamed(right_))
                user.rights.insert(*right);
        }
        return users;
    }

    std::shared_ptr<const UsersInRoles> users_;
    ChangeCount changes_;
    Key user_ = 0;
    std::string role_, right_;
    soci::statement readAll_;
};

std::shared_ptr<const UsersInRoles> FindUsersInRoles(Database& database)
{
    return database.With<RightsInMemory>(
        [&](RightsInMemory& kept) { return kept.After(database.ChangesOfRights()); });
}

/// 0, which no user has, for a text that is no code.
Key KeyOf(const std::string& code)
{
    Key key = 0;
    const char* const end = code.data() + code.size();
    const auto read = std::from_chars(code.data(), end, key);
    return read.ec == std::errc() && read.ptr == end ? key : 0;
}

Rights EveryRight()
{
    Rights all;
    for (const RightInfo& info : AllRights())
        all.insert(info.right);
    return all;
}

std::string Objection(const UsersInRoles& users, const Author& author, Right right)
{
    if (users.empty() || author.isOwner)
        return {};
    const std::string act = InfoOf(right).Act();
    const auto user = users.find(KeyOf(author.code));
    if (user == users.end())
        return "Para " + act + " é preciso entrar com um usuário desta loja. Entre e tente de novo.";
    if (user->second.rights.contains(right))
        return {};
    return user->second.role + " não pode " + act + ". Peça a quem administra os usuários.";
}

} // namespace

bool HasUsers(Database& database) { return !FindUsersInRoles(database)->empty(); }

bool IsUser(Database& database, Key user) { return FindUsersInRoles(database)->contains(user); }

Rights RightsOf(Database& database, Key user)
{
    const auto users = FindUsersInRoles(database);
    if (users->empty())
        return EveryRight();
    const auto found = users->find(user);
    return found == users->end() ? Rights() : found->second.rights;
}

std::string WhyDenied(Database& database, const Author& author, Right right)
{
    return Objection(*FindUsersInRoles(database), author, right);
}

DeniedRights DeniedRightsOf(Database& database, const Author& author)
{
    const auto users = FindUsersInRoles(database);
    DeniedRights denied;
    for (const RightInfo& info : AllRights()) {
        if (std::string why = Objection(*users, author, info.right); !why.empty())
            denied[info.right] = std::move(why);
    }
    return denied;
}

void RequireRight(Database& database, const Author& author, Right right)
{
    if (std::string why = WhyDenied(database, author, right); !why.empty())
        throw RightDenied(right, std::move(why));
}

} // namespace kova::family
