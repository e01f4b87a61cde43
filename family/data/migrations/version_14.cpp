#include "family/data/migrations/held_rules.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

namespace {

/// What a waiting customer would take: any of the services with any of the employees.
std::vector<std::string> ChoiceOf(const Dialect& dialect, const std::string& what)
{
    const std::string table = "espera_" + what, column = "codigo_do_" + what;
    return {
        "create table " + table + " (codigo " + dialect.identity + ", codigo_da_espera " + dialect.bigInteger
            + " not null references lista_de_espera (codigo), " + column + " " + dialect.bigInteger
            + " not null references " + what + " (codigo))",
        "create unique index " + table + "_por_espera on " + table + " (codigo_da_espera, " + column + ")",
        // For the engine itself, which has to know whether the other row may go.
        "create index " + table + "_por_" + what + " on " + table + " (" + column + ")",
    };
}

} // namespace

std::vector<std::string> SchemaOfVersion14(const Dialect& dialect)
{
    const std::string big = dialect.bigInteger;
    std::vector<std::string> statements = {
        // situacao: 1 waiting, 2 being booked at a desk, 3 booked, 4 given up. dias_da_semana has a digit for
        // each day that would do, 1 Sunday to 7 Saturday. The appointment that came of it may be gone again.
        "create table lista_de_espera (codigo " + dialect.identity + ", codigo_do_cliente " + big
            + " not null references cliente (codigo), codigo_do_animal " + big
            + " not null references animal (codigo), data_inicial text not null, data_final text not null,"
              " dias_da_semana text not null, hora_inicial text not null, hora_final text not null,"
              " observacao text, situacao integer not null default 1, numero_do_agendamento "
            + big
            + ", incluido_em text not null, incluido_por text not null, alterado_em text, alterado_por text,"
              " versao "
            + big + " not null default 1)",
        // Those who wait are few, however old the shop is.
        "create index lista_de_espera_aberta on lista_de_espera (data_final, codigo) where situacao < 3",
        "create index lista_de_espera_por_cliente on lista_de_espera (codigo_do_cliente)",
        "create index lista_de_espera_por_animal on lista_de_espera (codigo_do_animal)",
    };
    for (const char* what : {"servico", "funcionario"}) {
        for (std::string& statement : ChoiceOf(dialect, what))
            statements.push_back(std::move(statement));
    }
    return statements;
}

void HoldRulesOfVersion14(soci::session& session, const Dialect& dialect)
{
    HoldRulesOfVersion(14, session, dialect);
}

} // namespace kova::family
