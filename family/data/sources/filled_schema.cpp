#include "family/data/sources/filled_schema.hpp"

#include "family/data/migrations/held_rules.hpp"

namespace kova::family {

void FillSchema(Database& database, Migrations migrations, const std::function<void(Database&)>& fill)
{
    soci::session& session = database.Session();
    const Dialect& dialect = database.GetDialect();
    const bool hasRules = NewestVersion(migrations) >= FirstVersionWithRules;
    RunMissing(session, dialect, migrations);
    if (hasRules)
        LiftRules(session, dialect);
    fill(database);
    if (hasRules)
        HoldRules(session, dialect);
}

} // namespace kova::family
