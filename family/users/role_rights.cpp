#include "family/users/role_rights.hpp"

#include "family/data/audit/add_row.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/user_rows.hpp"

#include <string>

namespace kova::family {

namespace {

/// The names of the role's rights as they stand there, by the codes of their rows.
std::map<std::string, Key> StoredRights(Database& database, Key role)
{
    std::map<std::string, Key> stored;
    SelectRows<RoleRightRow>(database, [&](const RoleRightRow& row) {
        if (row.codigoDoPapel == role)
            stored[row.direito] = row.codigo;
    });
    return stored;
}

void RemoveRight(Database& database, const RoleRightRow& row, const Author& author)
{
    try {
        database.Session() << "delete from papel_direito where codigo = :codigo", soci::use(row.codigo);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
    AuditRemoval(database, author, RoleRightRow::Table, row.codigo, ValuesOf(row));
}

} // namespace

std::map<Key, Rights> RightsOfRoles(Database& database)
{
    std::map<Key, Rights> rights;
    SelectRows<RoleRightRow>(database, [&](const RoleRightRow& row) {
        if (const auto right = RightNamed(row.direito))
            rights[row.codigoDoPapel].insert(*right);
    });
    return rights;
}

void WriteRightsOf(Database& database, Key role, const Rights& rights, const Author& author)
{
    const std::map<std::string, Key> stored = StoredRights(database, role);
    for (const RightInfo& info : AllRights()) {
        const std::string name(info.name);
        const auto there = stored.find(name);
        const bool wanted = rights.contains(info.right);
        if (wanted && there == stored.end())
            AddRow(database, RoleRightRow{0, role, name}, author);
        if (!wanted && there != stored.end())
            RemoveRight(database, {there->second, role, name}, author);
    }
}

} // namespace kova::family
