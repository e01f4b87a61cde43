#include "family/data/migrations/counted_tables.hpp"
#include "family/data/migrations/held_rules.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

namespace {

/// A shop that was fictional before this step is marked as one: nobody has that company, and nobody has
/// signed in there.
constexpr const char* MarkDemonstration =
    "insert into ajuste (nome, valor) select 'demonstracao', 'sim' from empresa where codigo = 1"
    " and cnpj = '99999999000191' and razao_social = 'Amigo Fiel Serviços para Animais Ltda.'"
    " and not exists (select 1 from usuario where codigo_do_papel is not null)";

/// What a desk keeps in memory of them is read again when a change is counted.
constexpr CountedTable CountedTables[] = {{"ajuste", "codigo, nome, valor"}};

} // namespace

std::vector<std::string> SchemaOfVersion12(const Dialect& dialect)
{
    std::vector<std::string> statements = {
        "create table ajuste (codigo " + dialect.identity + ", nome text not null, valor text not null)",
        "create unique index ajuste_por_nome on ajuste (nome)",
        MarkDemonstration,
    };
    for (std::string& statement : CountFromNowOn(CountedTables, dialect))
        statements.push_back(std::move(statement));
    return statements;
}

void HoldRulesOfVersion12(soci::session& session, const Dialect& dialect)
{
    HoldRulesOfVersion(12, session, dialect);
}

} // namespace kova::family
