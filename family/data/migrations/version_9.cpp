#include "family/data/migrations/counted_tables.hpp"
#include "family/data/migrations/held_rules.hpp"
#include "family/data/migrations/schemas.hpp"

#include <algorithm>

namespace kova::family {

namespace {

std::vector<std::string> Tables(const Dialect& dialect)
{
    const std::string key = " (codigo " + dialect.identity + ",";
    const std::string role = " " + dialect.bigInteger + " not null references papel (codigo),";
    return {
        "create table papel" + key + " nome text not null)",
        "create unique index papel_por_nome on papel (nome)",

        // What those who have the role may do.
        "create table papel_direito" + key + " codigo_do_papel" + role + " direito text not null)",
        "create unique index papel_direito_por_papel on papel_direito (codigo_do_papel, direito)",

        // A user without a role is a name that was written down once, and cannot sign in. senha and pin are
        // what Argon2id makes of them.
        "alter table usuario add column codigo_do_papel " + dialect.bigInteger + " references papel (codigo)",
        "alter table usuario add column senha text",
        "alter table usuario add column pin text",
        "create unique index usuario_por_nome on usuario (nome) where codigo_do_papel is not null",
        "create index usuario_por_papel on usuario (codigo_do_papel) where codigo_do_papel is not null",

        // Wrong tries to sign in under a name, which is kept as a digest: somebody may have typed a password
        // there. ultimo_erro is in seconds since 1970.
        "create table tentativa_de_entrada (identificador text not null primary key, erros integer not null,"
        " ultimo_erro "
            + dialect.bigInteger + " not null)",
    };
}

struct FirstRole {
    const char* name;
    /// Separated by blanks.
    const char* rights;
};
constexpr FirstRole FirstRoles[] = {
    {"Administração",
     "agendamento.incluir agendamento.alterar agendamento.cancelar agendamento.excluir"
     " agendamento.desfazer_pre_venda cadastro.alterar cadastro.precos dados.exportar dados.anonimizar"
     " historico.ver usuarios.administrar"},
    {"Gerência",
     "agendamento.incluir agendamento.alterar agendamento.cancelar agendamento.excluir"
     " agendamento.desfazer_pre_venda cadastro.alterar cadastro.precos dados.exportar historico.ver"},
    {"Recepção", "agendamento.incluir agendamento.alterar agendamento.cancelar cadastro.alterar"},
};

void AddFirstRoles(std::vector<std::string>& statements)
{
    for (const FirstRole& role : FirstRoles) {
        const std::string name = std::string("'") + role.name + "'";
        statements.push_back("insert into papel (nome) values (" + name + ")");
        const std::string rights = role.rights;
        for (std::size_t at = 0; at < rights.size();) {
            const std::size_t end = std::min(rights.find(' ', at), rights.size());
            statements.push_back("insert into papel_direito (codigo_do_papel, direito) select codigo, '"
                                 + rights.substr(at, end - at) + "' from papel where nome = " + name);
            at = end + 1;
        }
    }
}

/// Who may do what stays in memory until a change is counted.
constexpr CountedTable CountedTables[] = {
    {"usuario", "codigo, nome, situacao, codigo_do_papel"},
    {"papel", "codigo, nome"},
    {"papel_direito", "codigo, codigo_do_papel, direito"},
};

} // namespace

std::vector<std::string> SchemaOfVersion9(const Dialect& dialect)
{
    std::vector<std::string> statements = Tables(dialect);
    AddFirstRoles(statements);
    for (std::string& statement : CountFromNowOn(CountedTables, dialect))
        statements.push_back(std::move(statement));
    return statements;
}

void HoldRulesOfVersion9(soci::session& session, const Dialect& dialect)
{
    HoldRulesOfVersion(9, session, dialect);
}

} // namespace kova::family
