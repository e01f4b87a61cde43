#include "family/users/administrators.hpp"

#include "family/data/engine/database.hpp"
#include "family/users/rights.hpp"

namespace kova::family {

namespace {

/// Counts the users `u` that fulfil the condition, in which each :chave is the key.
bool IsAny(Database& database, const std::string& condition, Key key)
{
    long long users = 0;
    try {
        database.Session() << "select count(*) from usuario u where " + condition, soci::use(key, "chave"),
            soci::into(users);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
    return users > 0;
}

/// Whether `role` is one that administers.
std::string Administers(const std::string& role)
{
    return "exists (select 1 from papel_direito d where d.codigo_do_papel = " + role + " and d.direito = '"
        + std::string(InfoOf(Right::AdministerUsers).name) + "')";
}

std::string IsAdministrator()
{
    return "u.situacao = 1 and u.senha is not null and " + Administers("u.codigo_do_papel");
}

} // namespace

bool HasAdministrator(Database& database) { return HasAdministratorBesideUser(database, 0); }

bool HasAdministratorBesideUser(Database& database, Key user)
{
    return IsAny(database, "u.codigo <> :chave and " + IsAdministrator(), user);
}

bool HasAdministratorBesideRole(Database& database, Key role)
{
    return IsAny(database, "u.codigo_do_papel <> :chave and " + IsAdministrator(), role);
}

bool CouldAdminister(Database& database, Key user, Key role)
{
    return IsAny(database,
                 "u.codigo = :chave and u.senha is not null and " + Administers(std::to_string(role)), user);
}

std::string WhyNobodyAdministers(Database& database, bool had)
{
    if (HasAdministrator(database))
        return {};
    if (had)
        return LastAdministrator;
    return IsAny(database, "u.codigo <> :chave and u.codigo_do_papel is not null", 0) ? FirstAdministrator
                                                                                      : "";
}

} // namespace kova::family
