#include "family/data/migrations/audit_indexes.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion11(const Dialect& dialect)
{
    // Lines are told by days, the last line of each first. A file's index has the row's key behind its
    // columns anyway.
    const std::string day = std::string("substr(momento, 1, 10)") + (dialect.IsServer() ? ", codigo" : "");
    std::vector<std::string> statements = {
        "create index auditoria_por_dia on auditoria (" + day + ")",
        "create index auditoria_por_usuario on auditoria (usuario, " + day + ")",
        "create index auditoria_por_operacao on auditoria (operacao, " + day + ")",
        "create index auditoria_por_tabela on auditoria (tabela, " + day + ")",
    };
    for (std::string& statement : IndexWordsOfAudit(dialect))
        statements.push_back(std::move(statement));
    return statements;
}

} // namespace kova::family
