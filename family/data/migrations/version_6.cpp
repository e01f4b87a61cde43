#include "family/data/migrations/held_rules.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion6(const Dialect& dialect) { return dialect.pinCounting; }

void HoldRulesOfVersion6(soci::session& session, const Dialect& dialect)
{
    HoldRulesOfVersion(6, session, dialect);
}

} // namespace kova::family
