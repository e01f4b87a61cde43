#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion3(const Dialect& dialect)
{
    std::vector<std::string> statements = {
        "alter table especie add column situacao integer not null default 1",
        "alter table raca add column situacao integer not null default 1",

        // The names and the address are looked for apart. The lines of texto_de_busca were nickname, name
        // and address.
        "alter table cliente add column nomes_de_busca text not null default ''",
        "alter table cliente add column endereco_de_busca text not null default ''",
        "update cliente set nomes_de_busca = substr(texto_de_busca, 1, " + dialect.position
            + "(texto_de_busca, '\n')) || nome_de_busca",
        "update cliente set endereco_de_busca = substr(texto_de_busca, length(nomes_de_busca) + 2)",
        "alter table cliente drop column texto_de_busca",

        // The names are read in this order, and from nowhere else, to be looked at in memory. The counter
        // tells whether they have to be read again.
        "drop index cliente_por_nome",
        "create index cliente_por_nome on cliente (nome_de_busca, codigo, nomes_de_busca)",
        "create table contador_de_alteracoes (tabela text not null primary key, alteracoes "
            + dialect.bigInteger + " not null)",
        "insert into contador_de_alteracoes (tabela, alteracoes) values ('cliente', 0)",
    };
    for (std::string& statement : dialect.countChanges("cliente", "codigo, nome_de_busca, nomes_de_busca"))
        statements.push_back(std::move(statement));
    return statements;
}

} // namespace kova::family
