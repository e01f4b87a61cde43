#include "family/data/migrations/held_rules.hpp"

#include "family/data/engine/key.hpp"
#include "family/data/engine/migration.hpp"

namespace kova::family {

namespace {

constexpr RowRule OfServices[] = {
    {"duracao", "@duracao_em_minutos < 0", "a duração é negativa"},
    {"preco", "@preco_em_centavos < 0 or @custo_em_centavos < 0", "o preço ou o custo é negativo"},
    {"sessoes", "@quantidade_de_sessoes < 1", "a quantidade de sessões não é possível"},
    {"situacao", "@situacao not in (1, 2)", "a situação não existe"},
};

constexpr RowRule OfEmployees[] = {
    {"simultaneos", "@agendamentos_simultaneos < 0", "a quantidade de agendamentos simultâneos é negativa"},
    {"situacao", "@situacao not in (1, 2)", "a situação não existe"},
};

constexpr RowRule OfHolidays[] = {
    {"data", "(@data is null and (@dia is null or @mes is null)) or (@data is not null and @dia is not null)",
     "não tem ou um dia e um mês, ou uma data"},
    {"dia",
     "@mes not between 1 and 12 or @dia < 1 or @dia > 31 or (@dia > 30 and @mes in (4, 6, 9, 11))"
     " or (@dia > 29 and @mes = 2)",
     "o dia do ano não existe"},
};

constexpr RowRule OfCustomers[] = {
    {"tipo", "@tipo_de_pessoa not in ('PF', 'PJ')", "o tipo de pessoa não é PF nem PJ"},
    {"situacao", "@situacao not between 1 and 4", "a situação não existe"},
    {"nome", "trim(@nome) = ''", "falta o nome"},
};

constexpr RowRule OfAnimals[] = {
    {"sexo", "@sexo not in ('M', 'F')", "o sexo não é M nem F"},
    {"porte", "@porte not between 1 and 4", "o porte não existe"},
    {"situacao", "@situacao not in (1, 2)", "a situação não existe"},
    {"nome", "trim(@nome) = ''", "falta o nome"},
};

constexpr RowRule OfAppointments[] = {
    {"termino",
     "@data_final < @data_inicial or (@data_final = @data_inicial and @hora_final <= @hora_inicial)",
     "o término não é posterior ao início"},
    {"situacao", "@situacao not between 1 and 4", "a situação não existe"},
    {"tipo", "@tipo_do_agendamento not in (0, 1)", "o tipo do agendamento não existe"},
    {"cliente", "@tipo_do_agendamento = 0 and (@codigo_do_cliente is null or @codigo_do_animal is null)",
     "falta o cliente ou o animal"},
    {"simplificado",
     "@tipo_do_agendamento = 1 and (@codigo_do_cliente is not null or @codigo_do_animal is not null)",
     "é simplificado e tem cliente ou animal cadastrado"},
    {"nomes", "@tipo_do_agendamento = 1 and (trim(@nome_do_cliente) = '' or trim(@nome_do_animal) = '')",
     "é simplificado e falta o nome do cliente ou do animal"},
    {"transporte", "@transporte_buscar not in (0, 1) or @transporte_levar not in (0, 1)",
     "o transporte não é sim nem não"},
};

constexpr RowRule OfPreSales[] = {
    {"situacao", "@situacao not between 1 and 3", "a situação não existe"},
};

constexpr RowRule OfOpeningHours[] = {
    {"dia", "@dia_da_semana not between 1 and 7", "o dia da semana não existe"},
    {"horas",
     "@hora_inicial not like '__:__' or @hora_final not like '__:__' or @hora_inicial < '00:00'"
     " or @hora_final > '24:00'",
     "o início ou o fim não é uma hora do dia"},
    {"fim", "@hora_final <= @hora_inicial", "o fim não é posterior ao início"},
};

constexpr RowRule OfAbsences[] = {
    {"horas",
     "@hora_inicial not like '__:__' or @hora_final not like '__:__' or @hora_inicial < '00:00'"
     " or @hora_inicial >= '24:00' or @hora_final < '00:00' or @hora_final > '24:00'",
     "o início ou o fim não é uma hora do dia"},
    {"fim", "@data_final < @data_inicial or (@data_final = @data_inicial and @hora_final <= @hora_inicial)",
     "o fim não é posterior ao início"},
    {"motivo", "trim(@motivo) = ''", "falta o motivo"},
};

constexpr RowRule OfRoles[] = {
    {"nome", "trim(@nome) = ''", "falta o nome"},
};

constexpr RowRule OfRights[] = {
    {"direito", "@direito not like '_%._%'", "o direito não é um nome com um ponto"},
};

constexpr RowRule OfUsers[] = {
    {"situacao", "@situacao not in (1, 2)", "a situação não existe"},
    {"nome", "@codigo_do_papel is not null and trim(@nome) = ''", "tem um papel e falta o nome"},
    {"senha", "@senha not like '$argon2id$%' or @pin not like '$argon2id$%'",
     "a senha ou o PIN não está protegido"},
};

constexpr RowRule OfTries[] = {
    {"erros", "@erros < 0 or @ultimo_erro < 0", "os erros ou o momento do último não são possíveis"},
};

constexpr RowRule OfSettings[] = {
    {"nome", "trim(@nome) = ''", "falta o nome"},
};

constexpr RowRule OfWaitingList[] = {
    {"dias", "@data_final < @data_inicial", "o último dia é anterior ao primeiro"},
    {"semana", "@dias_da_semana = '' or trim(@dias_da_semana, '1234567') <> ''",
     "os dias da semana não existem"},
    {"horas",
     "@hora_inicial not like '__:__' or @hora_final not like '__:__' or @hora_inicial < '00:00'"
     " or @hora_final > '24:00'",
     "o início ou o fim não é uma hora do dia"},
    {"fim", "@hora_final <= @hora_inicial", "o fim não é posterior ao início"},
    {"situacao", "@situacao not between 1 and 4", "a situação não existe"},
    {"agendamento",
     "(@situacao = 3 and @numero_do_agendamento is null)"
     " or (@situacao <> 3 and @numero_do_agendamento is not null)",
     "falta o agendamento, ou não foi marcado e tem um"},
};

constexpr const char* ColumnsOfHours = "dia_da_semana, hora_inicial, hora_final";

/// The rules of a table, held from a version on.
struct HeldTable {
    int since;
    TableRules rules;
};

constexpr HeldTable Tables[] = {
    {6,
     {"servico", "duracao_em_minutos, preco_em_centavos, custo_em_centavos, quantidade_de_sessoes, situacao",
      OfServices}},
    {6, {"funcionario", "agendamentos_simultaneos, situacao", OfEmployees}},
    {6, {"feriado", "dia, mes, data", OfHolidays}},
    {6, {"cliente", "tipo_de_pessoa, situacao, nome", OfCustomers}},
    {6, {"animal", "sexo, porte, situacao, nome", OfAnimals}},
    {6,
     {"agendamento",
      "data_inicial, hora_inicial, data_final, hora_final, tipo_do_agendamento, codigo_do_cliente,"
      " codigo_do_animal, nome_do_cliente, nome_do_animal, transporte_buscar, transporte_levar, situacao",
      OfAppointments}},
    {6, {"pre_venda", "situacao", OfPreSales}},
    {8, {"expediente", ColumnsOfHours, OfOpeningHours}},
    {8, {"horario_do_funcionario", ColumnsOfHours, OfOpeningHours}},
    {8, {"ausencia", "data_inicial, hora_inicial, data_final, hora_final, motivo", OfAbsences}},
    {9, {"papel", "nome", OfRoles}},
    {9, {"papel_direito", "direito", OfRights}},
    {9, {"usuario", "nome, situacao, codigo_do_papel, senha, pin", OfUsers}},
    {9, {"tentativa_de_entrada", "erros, ultimo_erro", OfTries}},
    {12, {"ajuste", "nome", OfSettings}},
    {14,
     {"lista_de_espera",
      "data_inicial, data_final, dias_da_semana, hora_inicial, hora_final, situacao, numero_do_agendamento",
      OfWaitingList}},
};

bool HasBrokenRow(soci::session& session, const TableRules& table, const RowRule& rule)
{
    int found = 0;
    session << std::string("select count(*) from (select 1 from ") + table.table + " where "
            + BrokenRows(rule) + " limit 1) as primeira",
        soci::into(found);
    return found > 0;
}

void Confirm(soci::session& session, const Dialect& dialect, const TableRules& table)
{
    for (const RowRule& rule : table.rules) {
        const std::string statement = dialect.confirmRule(table, rule);
        if (!statement.empty() && !HasBrokenRow(session, table, rule))
            session << statement;
    }
}

/// The pre-sales that are not cancelled although their appointment has another, older one: "3, 9", or "".
std::string SecondPreSales(soci::session& session)
{
    const soci::rowset<Key> found =
        (session.prepare << "select p.codigo from pre_venda p where p.situacao <> 2"
                            " and exists (select 1 from pre_venda q where q.situacao <> 2"
                            " and q.numero_do_agendamento = p.numero_do_agendamento and q.codigo < p.codigo)"
                            " order by p.codigo");
    std::string codes;
    for (const Key code : found)
        codes += (codes.empty() ? "" : ", ") + std::to_string(code);
    return codes;
}

constexpr const char* OnePreSale = "pre_venda_unica_por_agendamento";
constexpr int FirstVersionWithRules = 6;

/// Those that are too many already are left out by their codes, so that the others are held to it.
void HoldOnePreSale(soci::session& session)
{
    const std::string second = SecondPreSales(session);
    session << std::string("create unique index ") + OnePreSale
            + " on pre_venda (numero_do_agendamento) where situacao <> 2"
            + (second.empty() ? "" : " and codigo not in (" + second + ")");
}

} // namespace

void HoldRulesOfVersion(int version, soci::session& session, const Dialect& dialect)
{
    for (const HeldTable& table : Tables) {
        if (table.since != version)
            continue;
        for (const std::string& statement : dialect.holdRules(table.rules))
            session << statement;
        Confirm(session, dialect, table.rules);
    }
    if (version == FirstVersionWithRules)
        HoldOnePreSale(session);
}

void HoldRules(soci::session& session, const Dialect& dialect)
{
    const int stored = StoredVersion(session);
    for (int version = FirstVersionWithRules; version <= stored; ++version)
        HoldRulesOfVersion(version, session, dialect);
}

void LiftRules(soci::session& session, const Dialect& dialect)
{
    const int stored = StoredVersion(session);
    for (const HeldTable& table : Tables) {
        if (table.since > stored)
            continue;
        for (const std::string& statement : dialect.liftRules(table.rules))
            session << statement;
    }
    session << std::string("drop index if exists ") + OnePreSale;
}

} // namespace kova::family
