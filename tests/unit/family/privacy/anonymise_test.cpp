#include "tests/unit/family/privacy/privacy_fixture.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_restoration.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/checks/audit_check.hpp"
#include "family/data/checks/rule_check.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/waiting_list.hpp"
#include "family/privacy/anonymise.hpp"
#include "family/privacy/person_files.hpp"
#include "family/registers/customers/customer_merge.hpp"
#include "family/registers/registers.hpp"
#include "system/path_text.hpp"
#include "tests/unit/family/bath.hpp"

#include <utility>

namespace kova::family::test {

using privacy::AnonymiseAnswer;
using Outcome = AnonymiseAnswer::Outcome;

namespace {

/// After the last appointment of the shop.
const Author Later{"3", "Ana", "2026-12-01 10:00:00", "BALCAO-1"};

} // namespace

class AnonymousCustomer : public PrivacyTest {
protected:
    AnonymiseAnswer Forget(const Author& author = Later, std::optional<bool> sameName = {})
    {
        return privacy::Anonymise(host_.DataSource(), {10, sameName}, author, {});
    }
    AnonymiseAnswer Plan(const std::string& moment) const
    {
        return privacy::PlanToAnonymise(host_.DataSource(), {10, {}}, moment, {});
    }
    /// The columns that a customer's or an appointment's figures lie in.
    std::vector<std::string> Figures()
    {
        std::vector<std::string> all =
            Texts("select numero || ' ' || data_inicial || hora_inicial || data_final || hora_final || ' ' ||"
                  " coalesce(codigo_do_cliente, 0) || ' ' || coalesce(codigo_do_animal, 0) || ' ' ||"
                  " codigo_do_servico || ' ' || codigo_do_funcionario || ' ' || situacao || ' ' ||"
                  " incluido_por || ' ' || coalesce(alterado_por, '-') from agendamento order by numero");
        for (const char* more :
             {"select codigo || ' ' || valor_em_centavos || ' ' || situacao from pre_venda",
              "select sexo || codigo_da_raca || ' ' || porte from animal order by codigo",
              "select codigo || ' ' || tipo_de_pessoa || vip || categoria_da_curva_abc"
              " from cliente order by codigo"}) {
            for (std::string& text : Texts(more))
                all.push_back(std::move(text));
        }
        return all;
    }
};

TEST_F(AnonymousCustomer, IsFoundInNoTableAnyMore)
{
    Write();
    ASSERT_NE(WholeDatabase().find("zq"), std::string::npos);
    const AnonymiseAnswer answer = Forget();
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    const std::string all = WholeDatabase();
    for (const std::string& mark : Marks())
        EXPECT_EQ(all.find(mark), std::string::npos) << mark;
    EXPECT_EQ(all.find("zq"), std::string::npos) << all.substr(all.find("zq"), 80);
    EXPECT_EQ(all.find("91234-5678"), std::string::npos);
    EXPECT_EQ(answer.channels, 2);
    EXPECT_EQ(answer.animals, 1);
    EXPECT_EQ(answer.appointments, 6);
    EXPECT_EQ(answer.auditLines, 1);
    EXPECT_EQ(answer.remains, "");
}

TEST_F(AnonymousCustomer, LeavesItsFigures)
{
    Write();
    Change(2, 4);
    Run("update pre_venda set situacao = 3");
    const std::vector<std::string> before = Figures();
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(Figures(), before);
}

TEST_F(AnonymousCustomer, IsADeletedCustomerWithoutAName)
{
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(Texts("select nome || '|' || apelido || '|' || documento || '|' || situacao || '|' ||"
                    " endereco_completo_com_cep || '|' || tipos_e_canais || '|' || nome_de_busca"
                    " from cliente where codigo = 10"),
              std::vector<std::string>{"Pessoa anonimizada 10|||4|||pessoa anonimizada 10"});
    EXPECT_EQ(Texts("select nome || '|' || nome_de_busca || '|' || cor || '|' || situacao || '|' ||"
                    " coalesce(microchip, '-') || coalesce(observacao, '-') from animal where codigo = 50"),
              std::vector<std::string>{"Animal anonimizado 50|animal anonimizado 50||2|--"});
    EXPECT_EQ(Texts("select nome_do_cliente || '|' || canais_do_cliente || '|' || nome_do_animal || '|' ||"
                    " cor_do_animal || '|' || especie_do_animal || '|' || coalesce(observacao, '-') || '|' ||"
                    " texto_de_busca from agendamento where numero = 4"),
              std::vector<std::string>{"Pessoa anonimizada||Animal anonimizado||Felina|-|pessoa anonimizada\n"
                                       "animal anonimizado"});
    EXPECT_EQ(Count("canal_de_comunicacao"), 0);
}

TEST_F(AnonymousCustomer, LeavesOthersAsTheyAre)
{
    const auto others = [this] {
        std::vector<std::string> rows = RowsOf("cliente", "codigo <> 10");
        for (const auto& [table, condition] :
             {std::pair("animal", "codigo <> 50"), std::pair("agendamento", "numero not in (2, 4)"),
              std::pair("funcionario", "1 = 1"), std::pair("servico", "1 = 1"),
              std::pair("auditoria", "operacao <> 'anonimizacao'")}) {
            for (std::string& row : RowsOf(table, condition))
                rows.push_back(std::move(row));
        }
        return rows;
    };
    Change(3, 2);
    const std::vector<std::string> before = others();
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(others(), before);
}

TEST_F(AnonymousCustomer, HasALineOfTheAuditThatNamesNobody)
{
    Write();
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(
        Texts("select momento || '|' || usuario || '|' || posto || '|' || tabela || '|' || chave || '|' ||"
              " coalesce(antes, '-') || '|' || depois from auditoria where operacao = 'anonimizacao'"),
        std::vector<std::string>{
            "2026-12-01 10:00:00|3 - Ana|BALCAO-1|cliente|10|-|{\"canais\":2,\"animais\":1,"
            "\"agendamentos\":6,\"pedidos_na_lista_de_espera\":1,\"linhas_da_auditoria\":1,\"linhas_limpas\":"
            "\"1\"}"});
}

TEST_F(AnonymousCustomer, LeavesTheChainOfTheAuditWhole)
{
    Write();
    AppointmentInput deleted;
    deleted.number = 4;
    ASSERT_TRUE(DeleteAppointment(*SharedDatabase(host_.DataSource()), deleted, ana_).IsDone());
    const auto broken = [this] { return FindBrokenChain(*OpenForReading(host_.DataSource())); };
    ASSERT_EQ(broken(), std::vector<std::string>{});
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(Texts("select depois from auditoria where operacao = 'anonimizacao'"),
              std::vector<std::string>{
                  "{\"canais\":2,\"animais\":1,\"agendamentos\":5,\"pedidos_na_lista_de_espera\":1,"
                  "\"linhas_da_auditoria\":2,\"linhas_limpas\":\"1,3\"}"});
    EXPECT_EQ(broken(), std::vector<std::string>{});
    EXPECT_EQ(Texts("select codigo_da_linha || ' ' || ordem from elo_da_auditoria where sal = ''"
                    " order by ordem"),
              (std::vector<std::string>{"1 1", "3 3"}));
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(Count("auditoria where operacao = 'anonimizacao'"), 2);
    EXPECT_EQ(broken(), std::vector<std::string>{});
    RunUnchecked(host_.DataSource(), "update auditoria set antes = '{}' where codigo = 3");
    EXPECT_EQ(broken().front(), "auditoria 3: a linha foi alterada depois de gravada.");
}

TEST_F(AnonymousCustomer, WaitsForNothingAnyMore)
{
    ASSERT_EQ(Texts("select situacao || ' ' || versao || ' ' || observacao from lista_de_espera"),
              std::vector<std::string>{"1 1 zq lista_de_espera observacao"});
    Database& database = *SharedDatabase(host_.DataSource());
    const WaitingEntry before = FindWaiting(database, 1).value();
    WaitingEntry after = before;
    after.row.observacao = std::string("zq another note");
    ReplaceWaiting(database, before, after, ana_);
    const AnonymiseAnswer answer = Forget();
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_EQ(answer.waiting, 1);
    EXPECT_EQ(Texts("select situacao || ' ' || versao || ' ' || coalesce(observacao, '-') || ' '"
                    " || codigo_do_cliente || ' ' || dias_da_semana || ' ' || incluido_por"
                    " from lista_de_espera"),
              std::vector<std::string>{"4 3 - 10 246 Carla"});
    EXPECT_EQ(
        Texts("select coalesce(antes, '-') || coalesce(depois, '-') from auditoria"
              " where tabela = 'lista_de_espera'"),
        std::vector<std::string>{"{\"observacao\":null,\"versao\":1}{\"observacao\":null,\"versao\":2}"});
}

TEST_F(AnonymousCustomer, LeavesASoundShopBehind)
{
    ASSERT_TRUE(Forget().IsDone());
    std::vector<std::string> problems;
    FindBrokenRows(*SharedDatabase(host_.DataSource()), problems);
    FindBrokenTexts(*SharedDatabase(host_.DataSource()), problems);
    EXPECT_EQ(problems, std::vector<std::string>{});
}

TEST_F(AnonymousCustomer, IsRefusedWhileAppointmentsAreStillToCome)
{
    const std::string before = WholeDatabase();
    const AnonymiseAnswer answer = Forget(ana_);
    EXPECT_EQ(answer.outcome, Outcome::Refused);
    EXPECT_EQ(answer.text,
              "O cliente 10 ainda tem agendamentos marcados: 2, 21, 22, 23, 4. Cancele-os, ou marque-os como "
              "atendidos, e tente novamente.");
    EXPECT_EQ(WholeDatabase(), before);
    for (const int number : {2, 4, 21, 22, 23})
        Run("update agendamento set situacao = 3 where numero = " + std::to_string(number));
    EXPECT_TRUE(Forget(ana_).IsDone());
}

TEST_F(AnonymousCustomer, IsRefusedWhileAPreSaleIsOpen)
{
    Change(2, 4);
    const std::string before = WholeDatabase();
    const AnonymiseAnswer answer = Forget();
    EXPECT_EQ(answer.text,
              "O cliente 10 tem pré-vendas abertas, dos agendamentos 2. Fature-as ou cancele-as e tente "
              "novamente.");
    EXPECT_EQ(WholeDatabase(), before);
    Change(2, 1);
    EXPECT_TRUE(Forget().IsDone());
}

TEST_F(AnonymousCustomer, IsRefusedWithTheFirstTenAppointmentsStillToComeAndTheNumberOfTheRest)
{
    Database& database = *SharedDatabase(host_.DataSource());
    AppointmentRow row = FindByKey<AppointmentRow>(database, 2).value();
    row.dataInicial = row.dataFinal = "2026-11-30";
    const auto book = [&](Key number) {
        row.numero = number;
        Insert(database, row);
    };
    const std::string begin = "O cliente 10 ainda tem agendamentos marcados: 2, 21, 22, 23, 31, 32, 33, 34, ";
    const std::string end = ". Cancele-os, ou marque-os como atendidos, e tente novamente.";
    for (int number = 31; number <= 35; ++number)
        book(number);
    EXPECT_EQ(Plan(ana_.moment).text, begin + "35, 4" + end);
    book(36);
    EXPECT_EQ(Plan(ana_.moment).text, begin + "35, 36 e mais 1" + end);
}

TEST_F(AnonymousCustomer, TakesAlongAppointmentsOfTheSameNameOnlyWhereThatWasDecided)
{
    AppointmentInput booked = Bath("25/11/2026");
    booked.customerName = "ZQ Cliente Nome";
    booked.customerChannels = "outro telefone 99999-8888";
    ASSERT_TRUE(AddAppointments(*SharedDatabase(host_.DataSource()), booked, ana_).IsDone());
    const AnonymiseAnswer undecided = Forget();
    EXPECT_EQ(undecided.outcome, Outcome::Refused);
    EXPECT_EQ(undecided.undecided.size(), 1U);
    EXPECT_NE(undecided.text.find("só o mesmo nome"), std::string::npos) << undecided.text;
    const auto names = [this] {
        return Texts("select nome_do_cliente || ' ' || canais_do_cliente from agendamento"
                     " where data_inicial = '2026-11-25'");
    };
    EXPECT_TRUE(Forget(Later, false).IsDone());
    EXPECT_EQ(names(), std::vector<std::string>{"ZQ Cliente Nome outro telefone 99999-8888"});
    EXPECT_NE(WholeDatabase().find("99999-8888"), std::string::npos);
}

TEST_F(AnonymousCustomer, LeavesTheAuditOfAppointmentsOfTheSameNameWhereNothingWasDecided)
{
    AppointmentInput booked = Bath("25/11/2026");
    booked.customerName = "ZQ Cliente Nome";
    booked.customerChannels = "99999-8888";
    Database& database = *SharedDatabase(host_.DataSource());
    ASSERT_TRUE(AddAppointments(database, booked, ana_).IsDone());
    booked.number = std::stoi(Texts("select cast(max(numero) as text) from agendamento").front());
    ASSERT_TRUE(DeleteAppointment(database, booked, ana_).IsDone());
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_NE(WholeDatabase().find("99999-8888"), std::string::npos);
}

TEST_F(AnonymousCustomer, TakesAlongTheAuditOfAppointmentsOfTheSameName)
{
    AppointmentInput booked = Bath("25/11/2026");
    booked.customerName = "ZQ Cliente Nome";
    booked.customerChannels = "99999-8888";
    ASSERT_TRUE(AddAppointments(*SharedDatabase(host_.DataSource()), booked, ana_).IsDone());
    ASSERT_TRUE(Forget(Later, true).IsDone());
    EXPECT_EQ(WholeDatabase().find("ZQ"), std::string::npos);
    EXPECT_EQ(WholeDatabase().find("99999-8888"), std::string::npos);
}

TEST_F(AnonymousCustomer, IsNamedByNoAppointmentThatWasDeletedAndComesBack)
{
    Run("update funcionario set agendamentos_simultaneos = 0");
    Database& database = *SharedDatabase(host_.DataSource());
    for (const Key number : {2, 4}) {
        AppointmentInput deleted;
        deleted.number = number;
        ASSERT_TRUE(DeleteAppointment(database, deleted, ana_).IsDone());
    }
    ASSERT_NE(WholeDatabase().find("zq"), std::string::npos);
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(WholeDatabase().find("zq"), std::string::npos);
    for (const Key number : {2, 4})
        EXPECT_TRUE(RestoreAppointment(database, number, ana_).IsDone());
    EXPECT_EQ(WholeDatabase().find("zq"), std::string::npos);
    EXPECT_EQ(Texts("select texto_de_busca from agendamento where numero in (2, 4) order by numero"),
              (std::vector<std::string>{"", "pessoa anonimizada\nanimal anonimizado"}));
    std::vector<std::string> problems;
    FindBrokenRows(database, problems);
    EXPECT_EQ(problems, std::vector<std::string>{});
}

TEST_F(AnonymousCustomer, KeepsWhatIsAnothersInLinesOfTheAuditThatTellOfBoth)
{
    Run("insert into auditoria (momento, usuario, tabela, chave, operacao, antes, depois) values"
        " ('2026-11-20 09:00:00', '1 - Ana', 'agendamento', 3, 'alteracao',"
        " '{\"codigo_do_cliente\":10,\"observacao\":\"zq remark\",\"tipo_do_agendamento\":0}',"
        " '{\"codigo_do_cliente\":11,\"observacao\":\"of others\",\"tipo_do_agendamento\":0}')");
    Run("insert into auditoria (momento, usuario, tabela, chave, operacao, antes) values"
        " ('2026-11-20 09:00:00', '1 - Ana', 'animal', 77, 'exclusao',"
        " '{\"codigo_do_cliente\":10,\"nome\":\"zq Rex\",\"microchip\":null,\"sexo\":\"M\"}')");
    Run("insert into auditoria (momento, usuario, tabela, chave, operacao, antes) values"
        " ('2026-11-20 09:00:00', '1 - Ana', 'animal', 78, 'exclusao',"
        " '{\"codigo_do_cliente\":100,\"nome\":\"Rex\",\"cor\":\"\\\"codigo_do_cliente\\\":10\"}')");
    ASSERT_TRUE(Forget().IsDone());
    const std::string all = WholeDatabase();
    EXPECT_EQ(all.find("zq"), std::string::npos);
    EXPECT_NE(all.find("of others"), std::string::npos);
    EXPECT_NE(all.find("{\"codigo_do_cliente\":10,\"nome\":\"Animal anonimizado 77\",\"microchip\":null,"
                       "\"sexo\":\"M\"}"),
              std::string::npos);
    EXPECT_NE(all.find("\"nome\":\"Rex\""), std::string::npos);
}

TEST_F(AnonymousCustomer, IsTakenOutOfLinesThatKeepOnlyWhatWasChanged)
{
    const auto line = [&](const char* table, int key, const char* operation, const char* before,
                          const char* after) {
        const auto text = [](const char* values) {
            return *values ? "'" + std::string(values) + "'" : std::string("null");
        };
        Run("insert into auditoria (momento, usuario, tabela, chave, operacao, antes, depois) values"
            " ('2026-11-20 09:00:00', '1 - Ana', '"
            + std::string(table) + "', " + std::to_string(key) + ", '" + operation + "', " + text(before)
            + ", " + text(after) + ")");
    };
    line("agendamento", 900, "inclusao", "",
         "{\"codigo_do_cliente\":10,\"observacao\":\"zq 1\",\"tipo_do_agendamento\":0}");
    line("agendamento", 900, "alteracao", "{\"observacao\":\"zq 1\"}", "{\"observacao\":\"zq 2\"}");
    line("agendamento", 900, "alteracao", "{\"codigo_do_cliente\":10,\"tipo_do_agendamento\":0}",
         "{\"codigo_do_cliente\":11,\"tipo_do_agendamento\":0}");
    line("agendamento", 900, "alteracao", "{\"observacao\":\"of others\"}",
         "{\"observacao\":\"of others, too\"}");
    line("animal", 77, "inclusao", "", "{\"codigo\":77,\"codigo_do_cliente\":10,\"nome\":\"zq Rex\"}");
    line("animal", 77, "alteracao", "{\"nome\":\"zq Rex\"}", "{\"nome\":\"zq Max\"}");
    line("animal", 50, "alteracao", "{\"cor\":\"zq black\"}", "{\"cor\":\"zq white\"}");
    line("animal", 78, "alteracao", "{\"nome\":\"Rex\"}", "{\"nome\":\"Max\"}");
    ASSERT_TRUE(Forget().IsDone());
    const std::string all = WholeDatabase();
    EXPECT_EQ(all.find("zq"), std::string::npos);
    for (const char* kept :
         {"\"of others\"", "\"of others, too\"", "{\"nome\":\"Rex\"}", "{\"nome\":\"Max\"}"})
        EXPECT_NE(all.find(kept), std::string::npos) << kept;
}

TEST_F(AnonymousCustomer, IsKnownByFormerNamesAndNumbersToo)
{
    const registers::Register& customers = registers::CustomerRegister();
    Database& database = *SharedDatabase(host_.DataSource());
    const auto change = [&](const char* channels) {
        const registers::Texts before = customers.Read(database, 10).value();
        registers::Texts typed = before;
        typed[registers::FieldNamed(customers.Fields(), "Canais")] = channels;
        ASSERT_TRUE(customers.Save(database, 10, before, typed, ana_).IsDone());
    };
    change("Celular: (21) 97777-6666");
    change("Celular: (31) 95555-4444");
    AppointmentInput booked = Bath("25/11/2026");
    booked.customerName = "zq Maria";
    booked.customerChannels = "21 97777 6666";
    ASSERT_TRUE(AddAppointments(database, booked, ana_).IsDone());
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(WholeDatabase().find("zq"), std::string::npos);
    EXPECT_EQ(WholeDatabase().find("97777"), std::string::npos);
}

TEST_F(AnonymousCustomer, IsLookedForAgainByWhatADeskWritesMeanwhile)
{
    AppointmentInput booked = Bath("25/11/2026");
    booked.customerName = "zq Maria";
    booked.customerChannels = "21 97777 6666";
    const auto desk = OpenDatabase(host_.DataSource());
    ASSERT_TRUE(AddAppointments(*desk, booked, ana_).IsDone());
    booked.number = std::stoi(Texts("select cast(max(numero) as text) from agendamento").front());
    ASSERT_TRUE(DeleteAppointment(*desk, booked, ana_).IsDone());
    const registers::Register& customers = registers::CustomerRegister();
    const registers::Texts before = customers.Read(*desk, 10).value();
    registers::Texts typed = before;
    typed[registers::FieldNamed(customers.Fields(), "Canais")] = "Celular: (21) 97777-6666";
    LongWork work;
    bool isWritten = false;
    work.progress = [&](long long done, long long total) {
        if (done == total && !std::exchange(isWritten, true)) {
            EXPECT_TRUE(customers.Save(*desk, 10, before, typed, ana_).IsDone());
        }
    };
    ASSERT_TRUE(privacy::Anonymise(host_.DataSource(), {10, {}}, Later, work).IsDone());
    ASSERT_TRUE(isWritten);
    EXPECT_EQ(WholeDatabase().find("zq"), std::string::npos);
    EXPECT_EQ(WholeDatabase().find("97777"), std::string::npos);
}

TEST_F(AnonymousCustomer, CanBeMadeSoAgain)
{
    ASSERT_TRUE(Forget().IsDone());
    Run("update agendamento set observacao = 'zq again' where numero = 2");
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(WholeDatabase().find("zq"), std::string::npos);
    EXPECT_EQ(Count("auditoria where operacao = 'anonimizacao'"), 2);
}

TEST_F(AnonymousCustomer, IsPlannedWithoutAnyChange)
{
    Write();
    const std::string before = WholeDatabase();
    const AnonymiseAnswer plan = Plan(Later.moment);
    EXPECT_TRUE(plan.IsDone()) << plan.text;
    EXPECT_EQ(plan.channels, 2);
    EXPECT_EQ(plan.appointments, 6);
    EXPECT_EQ(plan.auditLines, 1);
    EXPECT_EQ(Plan(ana_.moment).outcome, Outcome::Refused);
    EXPECT_EQ(WholeDatabase(), before);
}

TEST_F(AnonymousCustomer, IsMadeOfOneWhoseRowWasRemovedToo)
{
    const registers::Register& customers = registers::CustomerRegister();
    Database& database = *SharedDatabase(host_.DataSource());
    registers::Texts typed = customers.New();
    typed[registers::FieldNamed(customers.Fields(), "Nome")] = "zq Maria";
    const Key code = customers.Save(database, 0, {}, typed, ana_).key;
    ASSERT_TRUE(customers.Remove(database, code, ana_).IsDone());
    ASSERT_NE(WholeDatabase().find("zq Maria"), std::string::npos);
    ASSERT_TRUE(privacy::Anonymise(host_.DataSource(), {code, {}}, Later, {}).IsDone());
    EXPECT_EQ(WholeDatabase().find("zq Maria"), std::string::npos);
}

TEST_F(AnonymousCustomer, TakesAlongWhoHasBecomeOneWithIt)
{
    const registers::Register& customers = registers::CustomerRegister();
    Database& database = *SharedDatabase(host_.DataSource());
    registers::Texts typed = customers.New();
    typed[registers::FieldNamed(customers.Fields(), "Nome")] = "zq Maria";
    typed[registers::FieldNamed(customers.Fields(), "Canais")] = "Celular: (11) 98888-7777";
    const Key gone = customers.Save(database, 0, {}, typed, ana_).key;
    const auto plan = registers::PlanCustomerMerge(database, 10, gone);
    ASSERT_TRUE(registers::MergeCustomers(database, plan.value(), {}, ana_).IsDone());
    ASSERT_NE(WholeDatabase().find("zq Maria"), std::string::npos)
        << "the audit tells of the row that is gone";
    const AnonymiseAnswer answer = Forget();
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_EQ(WholeDatabase().find("zq Maria"), std::string::npos);
    EXPECT_EQ(WholeDatabase().find("98888"), std::string::npos);
}

TEST_F(AnonymousCustomer, IsAskedForUnderTheCodeThatItGoesOnWith)
{
    const registers::Register& customers = registers::CustomerRegister();
    Database& database = *SharedDatabase(host_.DataSource());
    registers::Texts typed = customers.New();
    typed[registers::FieldNamed(customers.Fields(), "Nome")] = "zq Maria";
    const Key gone = customers.Save(database, 0, {}, typed, ana_).key;
    const auto plan = registers::PlanCustomerMerge(database, 10, gone);
    ASSERT_TRUE(registers::MergeCustomers(database, plan.value(), {}, ana_).IsDone());
    const std::string before = WholeDatabase();
    const AnonymiseAnswer answer = privacy::Anonymise(host_.DataSource(), {gone, {}}, Later, {});
    const std::string told =
        "O cliente " + std::to_string(gone) + " foi unido ao cliente 10. Use o código 10.";
    EXPECT_EQ(answer.outcome, Outcome::Gone);
    EXPECT_EQ(answer.text, told);
    EXPECT_EQ(WholeDatabase(), before);
    const std::string failure = FailureOf([&] {
        privacy::ExportPerson(host_.DataSource(), gone, system::TextOf(folder_.Path()), ana_, now_, {});
    });
    EXPECT_NE(failure.find(told), std::string::npos) << failure;
}

TEST_F(AnonymousCustomer, IsNotThereWhereNoCustomerHadTheCode)
{
    const AnonymiseAnswer answer = privacy::Anonymise(host_.DataSource(), {99, {}}, Later, {});
    EXPECT_EQ(answer.outcome, Outcome::Gone);
    EXPECT_EQ(answer.text, "Não há cliente com o código 99.");
}

TEST_F(AnonymousCustomer, IsWrittenWholeOrNotAtAll)
{
    Write();
    const std::string before = WholeDatabase();
    Break("auditoria", "before insert");
    EXPECT_NE(FailureOf([&] { Forget(); }), "");
    Mend("auditoria");
    EXPECT_EQ(WholeDatabase(), before);
}

TEST_F(AnonymousCustomer, RaisesTheVersionsOfAppointmentsThatNamedIt)
{
    const auto versions = [this] {
        return Texts(
            "select numero || ' ' || versao from agendamento where numero in (1, 2, 4) order by numero");
    };
    EXPECT_EQ(versions(), (std::vector<std::string>{"1 1", "2 1", "4 1"}));
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(versions(), (std::vector<std::string>{"1 1", "2 2", "4 2"}));
}

TEST_F(AnonymousCustomer, IsNotNamedAgainByADeskThatStillShowsAnAppointment)
{
    // The session has read the day.
    ASSERT_FALSE(FindOn("20/11/2026").empty());
    ASSERT_TRUE(Forget().IsDone());
    AppointmentInput typed;
    typed.number = 2;
    typed.status = 1;
    typed.serviceType = 4;
    typed.service = typed.employee = 2;
    typed.customer = 10;
    typed.animal = 50;
    typed.startDate = typed.endDate = "20/11/2026";
    typed.startTime = "09:30";
    typed.endTime = "18:00";
    typed.remark = "zq remark of 2";
    const WriteAnswer answer = AlterAppointment(*SharedDatabase(host_.DataSource()), typed, ana_);
    EXPECT_EQ(answer.status, WriteAnswer::Refused) << answer.text;
    EXPECT_NE(answer.text.find("Nada foi gravado"), std::string::npos) << answer.text;
    EXPECT_EQ(WholeDatabase().find("zq"), std::string::npos);
}

TEST_F(AnonymousCustomer, IsNotNamedAgainByADeskThatHadItOpen)
{
    const registers::Register& customers = registers::CustomerRegister();
    Database& database = *SharedDatabase(host_.DataSource());
    const registers::Texts before = customers.Read(database, 10).value();
    ASSERT_TRUE(Forget().IsDone());
    registers::Texts typed = before;
    typed[registers::FieldNamed(customers.Fields(), "Bairro")] = "Centro";
    EXPECT_FALSE(customers.Save(database, 10, before, typed, ana_).IsDone());
    typed = before;
    typed[registers::FieldNamed(customers.Fields(), "VIP")] = "Sim";
    EXPECT_TRUE(customers.Save(database, 10, before, typed, ana_).IsDone());
    EXPECT_EQ(WholeDatabase().find("zq"), std::string::npos);
}

} // namespace kova::family::test
