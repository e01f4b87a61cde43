#include "family/data/migrations/schemas.hpp"

namespace kova::family {

namespace {

/// The changes of customers are counted where their addresses change too.
std::vector<std::string> CountAddresses(const Dialect& dialect)
{
    const std::string columns = "codigo, nome_de_busca, nomes_de_busca, endereco_de_busca on cliente ";
    if (dialect.IsServer())
        return {"drop trigger cliente_alteracao_contada on cliente",
                "create trigger cliente_alteracao_contada after insert or delete or update of " + columns
                    + "for each statement execute function conta_alteracao_de_cliente()"};
    return {
        "drop trigger cliente_alteracao_contada",
        "create trigger cliente_alteracao_contada after update of " + columns
            + "begin update contador_de_alteracoes set alteracoes = alteracoes + 1 where tabela = 'cliente';"
              " end"};
}

/// Names stand for the agenda's own tables, whoever writes.
std::vector<std::string> PinCounting(const Dialect& dialect)
{
    if (!dialect.IsServer())
        return {};
    return {"alter function conta_alteracao_de_animal() set search_path from current",
            "alter function conta_alteracao_de_feriado() set search_path from current"};
}

} // namespace

std::vector<std::string> SchemaOfVersion7(const Dialect& dialect)
{
    std::vector<std::string> statements = {
        // What an employee has booked is looked for by its end. The few appointments that end on a later day
        // than they begin are found here.
        "create index agendamento_de_varios_dias on agendamento"
        " (codigo_do_funcionario, data_final, data_inicial) where data_final > data_inicial",

        // Everything of a customer, an animal or a service; also for the engine itself, which has to know
        // whether a row of theirs may go.
        "create index agendamento_por_cliente on agendamento (codigo_do_cliente)"
        " where codigo_do_cliente is not null",
        "create index agendamento_por_animal on agendamento (codigo_do_animal)"
        " where codigo_do_animal is not null",
        "create index agendamento_por_servico on agendamento (codigo_do_servico)",
        "create index pacote_por_servico on pacote (codigo_do_servico)",

        // The names of the active animals are read in this order, and from nowhere else, to be looked at in
        // memory.
        "drop index animal_por_nome",
        "create index animal_por_nome on animal (nome_de_busca, codigo, situacao)",

        // Both stay in memory until a change is counted.
        "insert into contador_de_alteracoes (tabela, alteracoes) values ('animal', 0), ('feriado', 0)",
    };
    for (const auto& more : {dialect.countChanges("animal", "codigo, nome_de_busca, situacao"),
                             dialect.countChanges("feriado", "codigo, nome, dia, mes, data"),
                             CountAddresses(dialect), PinCounting(dialect)})
        statements.insert(statements.end(), more.begin(), more.end());
    return statements;
}

} // namespace kova::family
