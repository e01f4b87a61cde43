#include "family/data/checks/audit_rights.hpp"

#include "family/data/audit/audit_chain.hpp"
#include "family/data/rows/table_layouts.hpp"

namespace kova::family {

namespace {

/// The audit's tables, `t`, that a role, as an expression, may rewrite.
std::string RewritableBy(const std::string& role)
{
    return " from pg_class t where t.relnamespace = current_schema()::regnamespace"
           " and t.relname in ('auditoria', 'elo_da_auditoria')"
           " and (has_any_column_privilege("
        + role + ", t.oid, 'update') or has_table_privilege(" + role
        + ", t.oid, 'delete, truncate, trigger') or (t.relname = 'elo_da_auditoria'"
          " and has_any_column_privilege("
        + role + ", t.oid, 'insert')))";
}

/// Whoever was given leave to add lines, as `server-roles` does, works at a desk: neither an administrator of
/// the server nor whoever may act as the owner should be one. Of an administrator the server says that he has
/// every role.
constexpr const char* IsADesk =
    "(r.oid <> t.relowner and exists (select 1 from pg_class l"
    " join pg_attribute c on c.attrelid = l.oid,"
    " lateral aclexplode(array_cat(coalesce(l.relacl, '{}'), coalesce(c.attacl, '{}'))) g"
    " where l.relnamespace = current_schema()::regnamespace and l.relname = 'auditoria'"
    " and g.grantee = r.oid and g.privilege_type = 'INSERT'))";

bool MayEverybody(Database& database)
{
    int tables = 0;
    database.Session() << "select count(*)" + RewritableBy("'public'"), soci::into(tables);
    return tables > 0;
}

} // namespace

std::vector<std::string> WhoMayRewriteAudit(Database& database)
{
    if (!database.GetDialect().IsServer() || !Has(StoredTables(database), LinkRow::Table))
        return {};
    if (MayEverybody(database))
        return {"PUBLIC"};
    const soci::rowset<std::string> found =
        (database.Session().prepare << "select cast(r.rolname as text) from pg_roles r where r.rolcanlogin"
                                       " and exists (select 1"
             + RewritableBy("r.oid") + " and (not pg_has_role(r.oid, t.relowner, 'usage') or " + IsADesk
             + ")) order by r.rolname");
    return {found.begin(), found.end()};
}

bool HasRoleOfDesks(Database& database)
{
    if (!database.GetDialect().IsServer() || !Has(StoredTables(database), LinkRow::Table))
        return true;
    int roles = 0;
    // The roles that a server brings along are nobody's.
    database.Session() << "select count(*) from pg_roles r join pg_class l on l.relname = 'auditoria'"
                          " and l.relnamespace = current_schema()::regnamespace"
                          " where r.rolname not like 'pg\\_%' and not pg_has_role(r.oid, l.relowner, 'usage')"
                          " and has_any_column_privilege(r.oid, l.oid, 'insert') and not exists (select 1"
            + RewritableBy("r.oid") + ")",
        soci::into(roles);
    return roles > 0;
}

} // namespace kova::family
