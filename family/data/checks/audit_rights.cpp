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
                                       " and not r.rolsuper and exists (select 1"
             + RewritableBy("r.oid")
             + " and not pg_has_role(r.oid, t.relowner, 'usage')) order by r.rolname");
    return {found.begin(), found.end()};
}

} // namespace kova::family
