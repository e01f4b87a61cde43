#include "tests/unit/family/plan_fixture.hpp"

#include "family/data/sources/shared_database.hpp"

#include <soci/sqlite3/soci-sqlite3.h>

#include <algorithm>
#include <regex>
#include <sstream>

namespace kova::family::test {

namespace {

/// One that reads or writes rows.
bool IsAboutRows(const std::string& statement)
{
    static const std::regex rows("^(select|insert|update|delete|with) .*", std::regex::icase);
    return std::regex_match(statement, rows);
}

std::vector<std::string> StatementsOfFile(Database& database)
{
    auto* const file = static_cast<soci::sqlite3_session_backend*>(database.Session().get_backend())->conn_;
    std::vector<std::string> statements;
    for (auto* kept = sqlite_api::sqlite3_next_stmt(file, nullptr); kept != nullptr;
         kept = sqlite_api::sqlite3_next_stmt(file, kept)) {
        const std::string statement = sqlite_api::sqlite3_sql(kept);
        if (IsAboutRows(statement))
            statements.push_back(statement);
    }
    return statements;
}

StatementPlan PlanInFile(Database& database, const std::string& statement)
{
    int id = 0, parent = 0, unused = 0;
    std::string step;
    StatementPlan plan{statement, {}};
    soci::statement explaining = (database.Session().prepare << "explain query plan " + statement,
                                  soci::into(id), soci::into(parent), soci::into(unused), soci::into(step));
    explaining.execute();
    while (explaining.fetch())
        plan.plan += step + "\n";
    return plan;
}

struct ServerStatement {
    std::string name, statement;
    /// Types of the parameters with blanks between them.
    std::string types;
};

std::vector<ServerStatement> StatementsOnServer(Database& database)
{
    ServerStatement one;
    std::vector<ServerStatement> statements;
    soci::statement asking =
        (database.Session().prepare << "select name, statement, array_to_string(parameter_types, ' ')"
                                       " from pg_prepared_statements where not from_sql",
         soci::into(one.name), soci::into(one.statement), soci::into(one.types));
    asking.execute();
    while (asking.fetch()) {
        if (IsAboutRows(one.statement) && one.statement.find("pg_prepared_statements") == std::string::npos)
            statements.push_back(one);
    }
    return statements;
}

std::string Arguments(const std::string& types, bool asValues)
{
    std::istringstream each(types);
    std::string type, arguments;
    while (each >> type) {
        const std::string value = !asValues ? "null" : type == "text" ? "'2026-11-27'" : "2";
        arguments += (arguments.empty() ? "(" : ", ") + value;
    }
    return arguments.empty() ? "" : arguments + ")";
}

StatementPlan PlanOnServer(Database& database, const ServerStatement& statement, bool forValues)
{
    std::string step;
    StatementPlan plan{statement.statement, {}};
    soci::statement explaining = (database.Session().prepare << "explain execute " + statement.name
                                          + Arguments(statement.types, forValues),
                                  soci::into(step));
    explaining.execute();
    while (explaining.fetch())
        plan.plan += step + "\n";
    return plan;
}

std::vector<StatementPlan> PlansOnServer(Database& database, bool forValues)
{
    database.Session() << (forValues ? "set plan_cache_mode = force_custom_plan"
                                     : "set plan_cache_mode = force_generic_plan");
    std::vector<StatementPlan> plans;
    for (const ServerStatement& statement : StatementsOnServer(database))
        plans.push_back(PlanOnServer(database, statement, forValues));
    database.Session() << "set plan_cache_mode = auto";
    return plans;
}

/// Rows 0 to `count` - 1 as n.i.
std::string Counting(int count)
{
    return "with recursive n(i) as (select 0 union all select i + 1 from n where i < "
        + std::to_string(count - 1) + ") ";
}

/// One of 2,520 days.
constexpr const char* DayOfRow =
    "cast(2022 + i % 2520 / 336 as text) || '-' || substr(cast(101 + i % 336 / 28 as text), 2)"
    " || '-' || substr(cast(101 + i % 28 as text), 2)";

} // namespace

std::vector<StatementPlan> PlansOf(Database& database)
{
    if (database.GetDialect().IsServer())
        return PlansOnServer(database, false);
    std::vector<StatementPlan> plans;
    for (const std::string& statement : StatementsOfFile(database))
        plans.push_back(PlanInFile(database, statement));
    return plans;
}

std::vector<StatementPlan> PlansForValues(Database& database)
{
    return database.GetDialect().IsServer() ? PlansOnServer(database, true) : PlansOf(database);
}

bool ReadsWholeTable(const std::string& plan)
{
    // The letters are the names that statements give to these tables.
    static const std::regex inFile("(^|\\n)SCAN "
                                   "(agendamento|cliente|animal|auditoria|elo_da_auditoria|pre_venda|pacote|"
                                   "canal_de_comunicacao|lista_de_espera|espera_servico|espera_funcionario|"
                                   "a|c|n|p)\\b");
    static const std::regex onServer(
        "Seq Scan on "
        "(agendamento|cliente|animal|auditoria|elo_da_auditoria|pre_venda|pacote|canal_de_comunicacao"
        "|lista_de_espera|espera_servico|espera_funcionario)\\b");
    // An index from its one end to the other: no condition in the line behind.
    static const std::regex wholeIndex(
        "Scan using \\w+ on "
        "(agendamento|cliente|animal|auditoria|elo_da_auditoria|pre_venda|pacote|lista_de_espera"
        "|espera_servico|espera_funcionario)\\b[^\\n]*\\n"
        "(?!\\s*Index Cond)");
    return std::regex_search(plan, inFile) || std::regex_search(plan, onServer)
        || std::regex_search(plan, wholeIndex);
}

std::string PlanWith(const std::string& text, const std::vector<StatementPlan>& plans)
{
    const auto found = std::ranges::find_if(
        plans, [&](const StatementPlan& plan) { return plan.statement.find(text) != std::string::npos; });
    return found == plans.end() ? "SCAN agendamento: the statement was not found" : found->plan;
}

void BigShopTest::AddAppointments(int employees)
{
    const std::string count = std::to_string(employees);
    Run("update agendamento set codigo_do_funcionario = 2");
    Run(Counting(employees)
        + "insert into funcionario (codigo, apelido, nome, nome_de_busca)"
          " select 100 + i, 'F', 'F', 'f' from n where i > 0");
    Run("update funcionario set agendamentos_simultaneos = 1000");
    Run(Counting(40)
        + "insert into servico (codigo, nome, nome_de_busca, descricao, numero_do_tipo_de_servico,"
          " duracao_em_minutos, preco_em_centavos, custo_em_centavos)"
          " select 100 + i, 'S', 's', '', 4, 60, 6000, 0 from n");
    Run("insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, tipo_do_agendamento,"
        " codigo_do_cliente, codigo_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
        " codigo_do_funcionario, situacao, incluido_em, incluido_por) "
        + Counting(NewAppointments) + "select " + DayOfRow
        + ", '09:00', case when i % 100 = 0 then '2029-12-28' else " + DayOfRow
        + " end, '10:00', 0, 10, 50, 4, 100 + i % 40, case when i % " + count + " = 0 then 2 else 100 + i % "
        + count + " end, 2, '2026-11-01 09:00:00', 'Carla' from n");
}

void BigShopTest::AddTheRest()
{
    const auto insert = [this](const std::string& into, const std::string& values, int count) {
        Run("insert into " + into + " " + Counting(count) + "select " + values + " from n");
        // A server that took the table for a small one would go through all of it for each row that refers
        // to it.
        Analyse();
    };
    const std::string address =
        "'rua das palmeiras imperiais, 1234, fundos - jardim das flores - vale sereno/sp'";
    insert("cliente (codigo, tipo_de_pessoa, apelido, nome, documento, categoria_da_curva_abc, logradouro,"
           " numero, complemento, bairro, cidade, uf, cep, endereco_completo, endereco_completo_com_cep,"
           " tipos_e_canais, nome_de_busca, endereco_de_busca)",
           "1000 + i, 'PF', 'C', 'C', cast(70000000000 + i as text), 'A', 'Rua das Palmeiras', '1', '',"
           " 'Jardim das Flores', 'Vale Sereno', 'SP', '00123456', "
               + address + ", " + address + ", " + address + ", 'c', " + address,
           NewCustomers);
    insert("canal_de_comunicacao (codigo_do_cliente, tipo, canal)", "1000 + i, 'Celular', '9'", NewCustomers);
    insert("animal (codigo, codigo_do_cliente, nome, sexo, codigo_da_raca, porte, cor, microchip, "
           "nome_de_busca)",
           "1000 + i, 1000 + i, 'A', 'M', 1, 2, '', cast(900000000000000 + i as text), 'a'", NewCustomers);
    insert("pacote (codigo, codigo_do_servico, criado_em, criado_por)",
           "1000 + i, 2, '2026-11-01 09:00:00', 'Carla'", NewAppointments / 5);
    insert("lista_de_espera (codigo, codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
           " dias_da_semana, hora_inicial, hora_final, situacao, numero_do_agendamento, incluido_em,"
           " incluido_por)",
           "1000 + i, 1000 + i, 1000 + i, '2022-01-01', " + std::string(DayOfRow)
               + ", '1234567', '08:00', '18:00', case when i % 100 = 0 then 1 else 3 end,"
                 " case when i % 100 = 0 then null else 5 end, '2026-11-01 09:00:00', 'Carla'",
           NewCustomers);
    insert("espera_servico (codigo_da_espera, codigo_do_servico)", "1000 + i, 2", NewCustomers);
    insert("espera_funcionario (codigo_da_espera, codigo_do_funcionario)", "1000 + i, 2", NewCustomers);
    Run("update agendamento set codigo_do_cliente = 1000 + numero, codigo_do_animal = 1000 + numero"
        " where numero > 100");
    Run("update agendamento set codigo_do_pacote = 1000 + numero / 10 where numero > 100 and numero % 2 = 0");
    insert("pre_venda (numero_do_agendamento, valor_em_centavos, situacao, criada_em)",
           "100 + i, 6000, 3, '2026-11-01 09:00:00'", NewAppointments / 2);
    insert("auditoria (momento, usuario, tabela, chave, operacao, depois)",
           "'2026-11-01 09:00:00', '1 - Carla', 'agendamento', 100 + i % 9000, 'inclusao', '{}'",
           2 * NewAppointments);
    // A server has linked them.
    if (!TestsRunOnServer())
        insert("elo_da_auditoria (ordem, codigo_da_linha, sal, elo)", "1000 + i, 1000 + i, '', 'x'",
               2 * NewAppointments);
}

void BigShopTest::AnalyseALittle()
{
    if (!TestsRunOnServer())
        Run("pragma analysis_limit = 400");
    Analyse();
}

void BigShopTest::ActAsIfThereWere(long long appointments, int employees, const std::string& ofSeveralDays)
{
    const auto per = [&](long long parts) {
        return std::to_string(std::max<long long>(1, appointments / parts));
    };
    const std::string all = std::to_string(appointments) + " ";
    Run("delete from sqlite_stat1 where tbl = 'agendamento'");
    Run("insert into sqlite_stat1 (tbl, idx, stat) values"
        " ('agendamento', 'agendamento_por_termino', '"
        + all + per(employees) + " " + per(employees * 2500LL) + " " + per(employees * 2500LL) + "'),"
        + " ('agendamento', 'agendamento_por_inicio', '" + all + per(2500) + " " + per(80'000) + " 1')");
    if (!ofSeveralDays.empty())
        Run("insert into sqlite_stat1 (tbl, idx, stat) values"
            " ('agendamento', 'agendamento_de_varios_dias', '"
            + ofSeveralDays + "')");
    Run("analyze sqlite_schema");
}

void BigShopTest::ForgetWhatWasCounted()
{
    if (TestsRunOnServer())
        return;
    Run("delete from sqlite_stat1");
    Run("analyze sqlite_schema");
}

Database& BigShopTest::Data() { return *SharedDatabase(host_.DataSource()); }

} // namespace kova::family::test
