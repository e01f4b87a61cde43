#include "family/data/migrations/audit_indexes.hpp"
#include "family/data/migrations/chained_audit.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion13(const Dialect& dialect)
{
    std::vector<std::string> statements = {
        "drop index auditoria_por_dia",
        "drop index auditoria_por_usuario",
        "drop index auditoria_por_operacao",
        "drop index auditoria_por_tabela",
    };
    for (std::string& statement : IndexDaysOfAudit(dialect))
        statements.push_back(std::move(statement));
    for (std::string& statement : ShortenLinks(dialect))
        statements.push_back(std::move(statement));
    return statements;
}

} // namespace kova::family
