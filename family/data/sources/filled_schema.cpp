#include "family/data/sources/filled_schema.hpp"

#include "family/data/migrations/held_rules.hpp"

namespace kova::family {

void FillSchema(Database& database, Migrations migrations, const std::function<void(Database&)>& fill)
{
    soci::session& session = database.Session();
    const Dialect& dialect = database.GetDialect();
    RunMissing(session, dialect, migrations);
    LiftRules(session, dialect);
    fill(database);
    HoldRules(session, dialect);
}

} // namespace kova::family
