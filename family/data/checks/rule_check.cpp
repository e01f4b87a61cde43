#include "family/data/checks/rule_check.hpp"
#include "family/data/checks/walk_pages.hpp"
#include "family/data/rows/table_layouts.hpp"

#include <iterator>
#include <limits>

namespace kova::family {

namespace {

/// The rows of `table` for which `condition` holds break the rule; `key` is their number.
struct Rule {
    const char* table;
    const char* key;
    const char* condition;
    const char* text;
};

constexpr Rule Rules[] = {
    {"agendamento", "numero", "data_final || ' ' || hora_final <= data_inicial || ' ' || hora_inicial",
     "o término não é posterior ao início."},
    {"agendamento", "numero", "situacao not between 1 and 4", "a situação não existe."},
    {"agendamento", "numero", "tipo_do_agendamento not in (0, 1)", "o tipo do agendamento não existe."},
    {"agendamento", "numero",
     "tipo_do_agendamento = 0 and (codigo_do_cliente is null or codigo_do_animal is null)",
     "falta o cliente ou o animal."},
    {"agendamento", "numero",
     "tipo_do_agendamento = 1 and (codigo_do_cliente is not null or codigo_do_animal is not null)",
     "é simplificado e tem cliente ou animal cadastrado."},
    {"agendamento", "numero", "tipo_do_agendamento = 1 and trim(nome_do_cliente) = ''",
     "é simplificado e falta o nome do cliente."},
    {"agendamento", "numero", "tipo_do_agendamento = 1 and trim(nome_do_animal) = ''",
     "é simplificado e falta o nome do animal."},
    {"agendamento", "numero",
     "exists (select 1 from animal a where a.codigo = agendamento.codigo_do_animal"
     " and a.codigo_do_cliente <> agendamento.codigo_do_cliente)",
     "o animal não é do cliente."},
    {"agendamento", "numero",
     "exists (select 1 from servico s where s.codigo = agendamento.codigo_do_servico"
     " and s.numero_do_tipo_de_servico <> agendamento.numero_do_tipo_de_servico)",
     "o serviço não é do tipo do agendamento."},
    {"agendamento", "numero",
     "situacao = 4 and not exists (select 1 from pre_venda p"
     " where p.numero_do_agendamento = agendamento.numero and p.situacao <> 2)",
     "está com pré-venda gerada, mas não há pré-venda."},
    {"agendamento", "numero", "situacao = 4 and numero_do_tipo_de_servico < 4",
     "está com pré-venda gerada, mas o serviço é do tipo clínico."},
    {"agendamento", "numero", "situacao = 4 and codigo_do_cliente is null",
     "está com pré-venda gerada, mas não tem cliente cadastrado."},
    {"agendamento", "numero",
     "(select count(*) from pre_venda p where p.numero_do_agendamento = agendamento.numero"
     " and p.situacao <> 2) > 1",
     "tem mais de uma pré-venda."},
    {"agendamento", "numero", "transporte_buscar not in (0, 1) or transporte_levar not in (0, 1)",
     "o transporte não é sim nem não."},
    {"pre_venda", "codigo", "situacao not between 1 and 3", "a situação não existe."},
    {"pre_venda", "codigo",
     "situacao <> 2 and not exists (select 1 from agendamento a"
     " where a.numero = pre_venda.numero_do_agendamento and a.situacao = 4)",
     "não foi cancelada, mas não há agendamento com pré-venda gerada."},
    {"servico", "codigo", "duracao_em_minutos < 0", "a duração é negativa."},
    {"servico", "codigo", "preco_em_centavos < 0 or custo_em_centavos < 0", "o preço ou o custo é negativo."},
    {"servico", "codigo", "quantidade_de_sessoes < 1", "a quantidade de sessões não é possível."},
    {"servico", "codigo", "situacao not in (1, 2)", "a situação não existe."},
    {"funcionario", "codigo", "agendamentos_simultaneos < 0",
     "a quantidade de agendamentos simultâneos é negativa."},
    {"funcionario", "codigo", "situacao not in (1, 2)", "a situação não existe."},
    {"cliente", "codigo", "tipo_de_pessoa not in ('PF', 'PJ')", "o tipo de pessoa não é PF nem PJ."},
    {"cliente", "codigo", "situacao not between 1 and 4", "a situação não existe."},
    {"cliente", "codigo", "trim(nome) = ''", "falta o nome."},
    {"animal", "codigo", "sexo not in ('M', 'F')", "o sexo não é M nem F."},
    {"animal", "codigo", "porte not between 1 and 4", "o porte não existe."},
    {"animal", "codigo", "situacao not in (1, 2)", "a situação não existe."},
    {"animal", "codigo", "trim(nome) = ''", "falta o nome."},
    {"feriado", "codigo",
     "(data is null and (dia is null or mes is null)) or (data is not null and dia is not null)",
     "não tem ou um dia e um mês, ou uma data."},
    {"feriado", "codigo",
     "mes not between 1 and 12 or dia < 1 or dia > 31 or (dia > 30 and mes in (4, 6, 9, 11))"
     " or (dia > 29 and mes = 2)",
     "o dia do ano não existe."},
    {"expediente", "codigo", "dia_da_semana not between 1 and 7", "o dia da semana não existe."},
    {"expediente", "codigo", "hora_final <= hora_inicial", "o fim não é posterior ao início."},
    {"horario_do_funcionario", "codigo", "dia_da_semana not between 1 and 7", "o dia da semana não existe."},
    {"horario_do_funcionario", "codigo", "hora_final <= hora_inicial", "o fim não é posterior ao início."},
    {"ausencia", "codigo", "data_final || ' ' || hora_final <= data_inicial || ' ' || hora_inicial",
     "o fim não é posterior ao início."},
    {"ausencia", "codigo", "trim(motivo) = ''", "falta o motivo."},
    {"papel", "codigo", "trim(nome) = ''", "falta o nome."},
    {"papel_direito", "codigo", "direito not like '_%._%'", "o direito não é um nome com um ponto."},
    {"ajuste", "codigo", "trim(nome) = ''", "falta o nome."},
    {"lista_de_espera", "codigo", "data_final < data_inicial", "o último dia é anterior ao primeiro."},
    {"lista_de_espera", "codigo", "dias_da_semana = '' or trim(dias_da_semana, '1234567') <> ''",
     "os dias da semana não existem."},
    {"lista_de_espera", "codigo", "hora_final <= hora_inicial", "o fim não é posterior ao início."},
    {"lista_de_espera", "codigo", "situacao not between 1 and 4", "a situação não existe."},
    {"lista_de_espera", "codigo",
     "(situacao = 3 and numero_do_agendamento is null)"
     " or (situacao <> 3 and numero_do_agendamento is not null)",
     "falta o agendamento, ou não foi marcado e tem um."},
    {"lista_de_espera", "codigo",
     "exists (select 1 from animal a where a.codigo = lista_de_espera.codigo_do_animal"
     " and a.codigo_do_cliente <> lista_de_espera.codigo_do_cliente)",
     "o animal não é do cliente."},
    {"lista_de_espera", "codigo",
     "not exists (select 1 from espera_servico s where s.codigo_da_espera = lista_de_espera.codigo)",
     "falta o serviço."},
};

/// The rows come in pages.
void FindRowsThatBreak(const Rule& rule, Database& database, std::vector<std::string>& problems)
{
    const std::string table = rule.table, key = rule.key;
    long long number = 0, after = std::numeric_limits<long long>::min();
    soci::statement statement =
        (database.Session().prepare << "select " + key + " from " + table + " where (" + rule.condition
                 + ") and " + key + " > :apos order by " + key + " limit " + std::to_string(PageSize),
         soci::into(number), soci::use(after, "apos"));
    WalkPages(
        statement, [&] { problems.push_back(table + " " + std::to_string(number) + ": " + rule.text); },
        [&] { after = number; });
}

} // namespace

int PassesOverRows() { return static_cast<int>(std::size(Rules)); }

void FindBrokenRows(Database& database, std::vector<std::string>& problems, const Passed& passed)
{
    const std::vector<StoredTable> tables = StoredTables(database);
    for (const Rule& rule : Rules) {
        if (Has(tables, rule.table))
            FindRowsThatBreak(rule, database, problems);
        passed();
    }
}

std::vector<std::string> FindBrokenRules(Database& database, DateTime now, const LongWork& work)
{
    std::vector<std::string> problems;
    const int passes = PassesOverRows() + PassesOverTexts() + 1;
    int done = 0;
    const Passed passed = [&] { work.Reach(++done, passes); };
    FindBrokenRows(database, problems, passed);
    FindBrokenTexts(database, problems, passed);
    FindAppointmentsWithoutRoom(database, now, problems);
    work.Reach(passes, passes);
    return problems;
}

} // namespace kova::family
