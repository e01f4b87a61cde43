#include "family/data/migrations/chained_audit.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion13(const Dialect& dialect)
{
    // Behind the day a server keeps equal entries together, which codes would keep apart.
    const std::string day = dialect.IsServer() ? "substr(momento, 1, 10)"
                                               : "cast(replace(substr(momento, 1, 10), '-', '') as integer)";
    std::vector<std::string> statements = {
        "drop index auditoria_por_dia",
        "drop index auditoria_por_usuario",
        "drop index auditoria_por_operacao",
        "drop index auditoria_por_tabela",
        "create index auditoria_por_dia on auditoria (" + day + ")",
        "create index auditoria_por_usuario on auditoria (usuario, " + day + ")",
        // What most lines are is found among the days.
        "create index auditoria_por_operacao on auditoria (operacao, " + day
            + ") where operacao not in ('inclusao', 'alteracao')",
        "create index auditoria_por_tabela on auditoria (tabela, " + day + ") where tabela <> 'agendamento'",
    };
    for (std::string& statement : ShortenLinks(dialect))
        statements.push_back(std::move(statement));
    return statements;
}

} // namespace kova::family
