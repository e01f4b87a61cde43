#include "family/data/migrations/counted_tables.hpp"

namespace kova::family {

std::vector<std::string> CountFromNowOn(std::span<const CountedTable> tables, const Dialect& dialect)
{
    std::vector<std::string> statements;
    for (const CountedTable& table : tables) {
        const std::string name = table.name;
        statements.push_back("insert into contador_de_alteracoes (tabela, alteracoes) values ('" + name
                             + "', 0)");
        for (std::string& statement : dialect.countChanges(name, table.columns))
            statements.push_back(std::move(statement));
        // Names stand for the agenda's own tables, whoever writes.
        if (dialect.IsServer())
            statements.push_back("alter function conta_alteracao_de_" + name
                                 + "() set search_path from current");
    }
    return statements;
}

} // namespace kova::family
