#include "family/data/migrations/chained_audit.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion10(const Dialect& dialect) { return ChainAudit(dialect); }

void ChainLinesOfVersion10(soci::session& session, const Dialect& dialect) { ChainLines(session, dialect); }

} // namespace kova::family
