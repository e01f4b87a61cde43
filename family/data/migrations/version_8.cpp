#include "family/data/migrations/counted_tables.hpp"
#include "family/data/migrations/held_rules.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

namespace {

// dia_da_semana is 1 Sunday to 7 Saturday. A time is "hh:mm", an end may be "24:00".
std::vector<std::string> Tables(const Dialect& dialect)
{
    const std::string hours = " dia_da_semana integer not null, hora_inicial text not null,"
                              " hora_final text not null)";
    const std::string key = " (codigo " + dialect.identity + ",";
    const std::string employee = " codigo_do_funcionario " + dialect.bigInteger;
    const std::string registered = " references funcionario (codigo),";
    return {
        // A day of the week without a row is one on which the shop is closed; one with several rows has
        // breaks between them.
        "create table expediente" + key + hours,

        // An employee without any row works whenever the shop is open.
        "create table horario_do_funcionario" + key + employee + " not null" + registered + hours,

        // Without an employee it is an absence of all.
        "create table ausencia" + key + employee + registered
            + " data_inicial text not null, hora_inicial text not null, data_final text not null,"
              " hora_final text not null, motivo text not null)",

        // For the engine itself, which has to know whether an employee's row may go.
        "create index horario_por_funcionario on horario_do_funcionario (codigo_do_funcionario)",
        "create index ausencia_por_funcionario on ausencia (codigo_do_funcionario)"
        " where codigo_do_funcionario is not null",
    };
}

/// Before there were opening hours, nobody was asked about any day but Sunday, and any hour would do.
std::string OpenFromMondayToSaturday()
{
    constexpr int Monday = 2, Saturday = 7;
    std::string rows;
    for (int day = Monday; day <= Saturday; ++day)
        rows += (rows.empty() ? "(" : ", (") + std::to_string(day) + ", '00:00', '24:00')";
    return "insert into expediente (dia_da_semana, hora_inicial, hora_final) values " + rows;
}

/// All three stay in memory until a change is counted.
constexpr CountedTable CountedTables[] = {
    {"expediente", "codigo, dia_da_semana, hora_inicial, hora_final"},
    {"horario_do_funcionario", "codigo, codigo_do_funcionario, dia_da_semana, hora_inicial, hora_final"},
    {"ausencia", "codigo, codigo_do_funcionario, data_inicial, hora_inicial, data_final, hora_final, motivo"},
};

} // namespace

std::vector<std::string> SchemaOfVersion8(const Dialect& dialect)
{
    std::vector<std::string> statements = Tables(dialect);
    statements.push_back(OpenFromMondayToSaturday());
    for (std::string& statement : CountFromNowOn(CountedTables, dialect))
        statements.push_back(std::move(statement));
    return statements;
}

void HoldRulesOfVersion8(soci::session& session, const Dialect& dialect)
{
    HoldRulesOfVersion(8, session, dialect);
}

} // namespace kova::family
