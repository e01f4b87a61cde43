#include "family/users/administrators.hpp"

#include "family/data/engine/database.hpp"
#include "family/users/rights.hpp"

namespace kova::family {

namespace {

long long Count(Database& database, const std::string& condition)
{
    long long users = 0;
    try {
        database.Session() << "select count(*) from usuario u where " + condition, soci::into(users);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
    return users;
}

} // namespace

bool HasAdministrator(Database& database)
{
    return Count(database,
                 "u.situacao = 1 and u.senha is not null and exists (select 1 from papel_direito d"
                 " where d.codigo_do_papel = u.codigo_do_papel and d.direito = '"
                     + std::string(InfoOf(Right::AdministerUsers).name) + "')")
        > 0;
}

std::string WhyNobodyAdministers(Database& database, bool had)
{
    if (HasAdministrator(database))
        return {};
    if (had)
        return "Ninguém mais poderia administrar os usuários desta loja. Antes dê a outro usuário ativo, com"
               " senha, um papel que administra os usuários.";
    if (Count(database, "u.codigo_do_papel is not null") == 0)
        return {};
    return "O primeiro usuário com um papel precisa poder administrar os usuários e ter uma senha. Escolha o"
           " papel Administração e defina a senha.";
}

} // namespace kova::family
