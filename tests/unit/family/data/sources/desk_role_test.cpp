// The role of a server's desks: it does a day's work, and changes nothing that the audit tells.

#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/data/checks/audit_check.hpp"
#include "family/data/checks/audit_rights.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/desk_role.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/privacy/anonymise.hpp"
#include "family/registers/registers.hpp"
#include "tools/agenda-data/commands.hpp"

#include <sstream>

namespace kova::family::test {

class PostgresqlDeskRole : public PostgresqlShop {
protected:
    PostgresqlDeskRole() { Server().Run("postgres", "create role \"postos da loja\" login"); }
    ~PostgresqlDeskRole() override
    {
        shop_.Run("drop owned by \"postos da loja\"");
        Server().Run("postgres", "drop role \"postos da loja\"");
    }

    std::string Desk() const
    {
        return "postgresql://postos%20da%20loja@/" + shop_.Name() + "?host=" + Server().Folder();
    }
    std::vector<std::string> Rewriters() const
    {
        return WhoMayRewriteAudit(*OpenForReading(shop_.Address()));
    }
    int Run(const std::vector<std::string>& words)
    {
        output_.str("");
        error_.str("");
        return data::Run(words, {{2026, 11, 20}, {9, 0, 0}}, output_, error_);
    }

    static constexpr const char* Role = "postos da loja";
    TemporaryFolder folder_;
    std::ostringstream output_, error_;
};

TEST_F(PostgresqlDeskRole, DoesADaysWork)
{
    GiveToDesks(shop_.Address(), Role);
    const auto database = OpenDatabase(Desk());
    AppointmentInput full = Bath("01/12/2026");
    full.kind = 0;
    full.customer = 10;
    full.animal = 50;
    const WriteAnswer booked = AddAppointments(*database, full, Somebody);
    ASSERT_TRUE(booked.IsDone()) << booked.field << booked.text;
    AppointmentInput changed = InputOf(*FindByKey<AppointmentRow>(*database, 10));
    changed.startTime = "09:30";
    EXPECT_TRUE(AlterAppointment(*database, changed, Somebody).IsDone());
    for (const int status : {3, 1, 4})
        EXPECT_TRUE(ChangeStatus(*database, 10, status, Somebody).IsDone()) << status;
    ASSERT_TRUE(AddAppointments(*database, Bath("02/12/2026"), Somebody).IsDone());
    AppointmentInput deleted;
    deleted.number = 11;
    EXPECT_TRUE(DeleteAppointment(*database, deleted, Somebody).IsDone());
    EXPECT_EQ(
        shop_.Run("select tabela || ' ' || operacao from auditoria order by codigo"),
        (std::vector<std::string>{"agendamento inclusao", "agendamento alteracao", "agendamento alteracao",
                                  "agendamento alteracao", "pre_venda inclusao", "agendamento alteracao",
                                  "agendamento inclusao", "agendamento exclusao"}));
    EXPECT_EQ(FindBrokenChain(*database), std::vector<std::string>{});
}

TEST_F(PostgresqlDeskRole, SavesRegisters)
{
    GiveToDesks(shop_.Address(), Role);
    const auto database = OpenDatabase(Desk());
    const registers::Register& customers = registers::CustomerRegister();
    const registers::Texts before = customers.Read(*database, 10).value();
    registers::Texts typed = before;
    typed[registers::FieldNamed(customers.Fields(), "Apelido")] = "Zeca";
    EXPECT_TRUE(customers.Save(*database, 10, before, typed, Somebody).IsDone());
    for (const char* field : {"Documento", "CEP", "Canais"})
        typed[registers::FieldNamed(customers.Fields(), field)] = "";
    typed.front().clear();
    const auto added = customers.Save(*database, 0, {}, typed, Somebody);
    EXPECT_TRUE(added.IsDone()) << (added.refused.empty() ? std::string() : added.refused.front().why);
    EXPECT_EQ(shop_.Run("select apelido from cliente where codigo in (10, 12) order by codigo"),
              (std::vector<std::string>{"Zeca", "Zeca"}));
    EXPECT_TRUE(customers.Remove(*database, 12, Somebody).IsDone());
    EXPECT_EQ(FindBrokenChain(*database), std::vector<std::string>{});
}

TEST_F(PostgresqlDeskRole, ImportsChecksCopiesAndTakesBack)
{
    GiveToDesks(shop_.Address(), Role);
    WriteContent(folder_ / "tipos.csv", "Número;Nome\n9;Hotel\n");
    EXPECT_EQ(Run({"import", Desk(), "tipos", folder_ / "tipos.csv"}), 0) << error_.str();
    WriteContent(folder_ / "tipos.csv", "Nome\nTransporte\n");
    EXPECT_EQ(Run({"import", Desk(), "tipos", folder_ / "tipos.csv"}), 0) << error_.str();
    EXPECT_EQ(shop_.Run("select numero from tipo_de_servico where nome = 'Transporte'").front(), "10");
    EXPECT_EQ(Run({"undo-import", Desk()}), 0) << error_.str();
    EXPECT_EQ(Run({"export", Desk(), "tipos", folder_ / "saida.csv"}), 0) << error_.str();
    EXPECT_EQ(Run({"check", Desk()}), 1);
    EXPECT_EQ(error_.str().find("auditoria"), std::string::npos) << error_.str();
    EXPECT_EQ(Run({"backup", Desk(), folder_ / "copia.bak"}), 0) << error_.str();
    EXPECT_EQ(FindBrokenChain(*OpenForReading(folder_ / "copia.bak")), std::vector<std::string>{});
}

TEST_F(PostgresqlDeskRole, ChangesNothingThatTheAuditTells)
{
    // What it could do before is taken from it.
    shop_.Run("grant all on all tables in schema public to \"postos da loja\"");
    GiveToDesks(shop_.Address(), Role);
    const auto database = OpenDatabase(Desk());
    ASSERT_TRUE(AddAppointments(*database, Bath("01/12/2026"), Somebody).IsDone());
    for (const char* statement :
         {"update auditoria set depois = ''", "delete from auditoria", "truncate auditoria",
          "insert into auditoria (codigo, momento, usuario, tabela, chave, operacao)"
          " values (0, '', '', '', 1, '')",
          "update elo_da_auditoria set sal = ''", "delete from elo_da_auditoria", "truncate elo_da_auditoria",
          "insert into elo_da_auditoria values (7, 7, '', '')", "alter table auditoria disable trigger all",
          "drop trigger auditoria_encadeada on auditoria", "set session_replication_role = replica",
          "select setval('auditoria_codigo_seq', 1)", "insert into versao_do_esquema values (1000)"})
        EXPECT_THROW(database->Session() << statement, soci::soci_error) << statement;
    database->Session()
        << "create temporary table meu (codigo bigint, momento text, usuario text, posto text,"
           " tabela text, chave bigint, operacao text, antes text, depois text)";
    EXPECT_THROW(database->Session() << "create trigger meu after insert on meu for each row"
                                        " execute function encadeia_auditoria()",
                 soci::soci_error);
    EXPECT_EQ(shop_.Run("select count(*) from auditoria").front(), "1");
    EXPECT_EQ(FindBrokenChain(*database), std::vector<std::string>{});
}

TEST_F(PostgresqlDeskRole, IsToldToBeMissingWhereOnlyTheOwnerCanBeAtADesk)
{
    const auto isMissed = [this] {
        Run({"check", shop_.Address()});
        return error_.str().find("só o dono das tabelas tem o que um posto precisa") != std::string::npos;
    };
    EXPECT_TRUE(isMissed());
    EXPECT_NE(error_.str().find("agenda-data server-roles"), std::string::npos);
    // Such a role could rewrite what it adds.
    shop_.Run("grant insert, update on auditoria to \"postos da loja\"");
    EXPECT_TRUE(isMissed());
    shop_.Run(
        "revoke all on auditoria from \"postos da loja\"; grant select on auditoria to \"postos da loja\"");
    EXPECT_TRUE(isMissed());
    GiveToDesks(shop_.Address(), Role);
    EXPECT_FALSE(isMissed());
    Run({"check", Desk()});
    EXPECT_EQ(error_.str().find("aviso: no servidor"), std::string::npos) << error_.str();
    Server().Run("postgres", "alter role \"postos da loja\" superuser");
    EXPECT_TRUE(isMissed());
    Server().Run("postgres", "alter role \"postos da loja\" nosuperuser");
}

TEST_F(PostgresqlDeskRole, LeavesAnonymisingToTheOwner)
{
    GiveToDesks(shop_.Address(), Role);
    const Author later{"3", "Ana", "2026-12-01 10:00:00", "BALCAO-1"};
    for (const auto& answer : {privacy::PlanToAnonymise(Desk(), {10, {}}, later.moment, {}),
                               privacy::Anonymise(Desk(), {10, {}}, later, {})}) {
        EXPECT_EQ(answer.outcome, privacy::AnonymiseAnswer::Outcome::Refused);
        EXPECT_NE(answer.text.find("dono do banco"), std::string::npos) << answer.text;
    }
    EXPECT_TRUE(privacy::Anonymise(shop_.Address(), {10, {}}, later, {}).IsDone());
}

TEST_F(PostgresqlDeskRole, IsToldWhereItMayDoMore)
{
    EXPECT_EQ(Rewriters(), std::vector<std::string>{});
    for (const char* right : {"update (antes) on auditoria", "delete on auditoria", "truncate on auditoria",
                              "trigger on auditoria", "insert on elo_da_auditoria",
                              "update on elo_da_auditoria", "pg_write_all_data"}) {
        const std::string to = " \"postos da loja\"";
        shop_.Run(std::string("grant ") + right + " to" + to);
        EXPECT_EQ(Rewriters(), std::vector<std::string>{Role}) << right;
        shop_.Run(std::string("revoke ") + right + " from" + to);
    }
    GiveToDesks(shop_.Address(), Role);
    EXPECT_EQ(Rewriters(), std::vector<std::string>{});
    shop_.Run("grant update on auditoria to public");
    EXPECT_EQ(Rewriters(), std::vector<std::string>{"PUBLIC"});
    EXPECT_EQ(Run({"check", shop_.Address()}), 1);
    EXPECT_NE(error_.str().find("aviso: no servidor o papel \"PUBLIC\" pode mudar a auditoria sem ser o dono "
                                "dela; \"agenda-data server-roles\" dá aos postos só o que eles precisam.\n"),
              std::string::npos)
        << error_.str();
    GiveToDesks(shop_.Address(), Role);
    EXPECT_EQ(Rewriters(), std::vector<std::string>{});
}

TEST_F(PostgresqlDeskRole, IsToldWhereItIsAnAdministratorsOrMayActAsTheOwner)
{
    GiveToDesks(shop_.Address(), Role);
    EXPECT_EQ(Rewriters(), std::vector<std::string>{});
    shop_.Run("alter role \"postos da loja\" superuser");
    EXPECT_EQ(Rewriters(), std::vector<std::string>{Role});
    shop_.Run("alter role \"postos da loja\" nosuperuser");
    EXPECT_EQ(Rewriters(), std::vector<std::string>{});
    shop_.Run("grant postgres to \"postos da loja\"");
    EXPECT_EQ(Rewriters(), std::vector<std::string>{Role});
    shop_.Run("revoke postgres from \"postos da loja\"");
    EXPECT_EQ(Rewriters(), std::vector<std::string>{});
}

TEST_F(PostgresqlDeskRole, IsGivenItsRightsByTheCommandOrByWhatItPrints)
{
    EXPECT_EQ(Run({"server-roles", shop_.Address(), "--role", Role}), 0) << error_.str();
    EXPECT_NE(output_.str().find("grant insert (momento, usuario, tabela, chave, operacao, antes, depois,"
                                 " posto) on \"public\".\"auditoria\" to \"postos da loja\";\n"),
              std::string::npos)
        << output_.str();
    EXPECT_THROW(OpenDatabase(Desk()), Failure);
    shop_.Run(output_.str());
    EXPECT_TRUE(AddAppointments(*OpenDatabase(Desk()), Bath("01/12/2026"), Somebody).IsDone());
    EXPECT_EQ(Run({"server-roles", shop_.Address(), "--role", Role, "--run"}), 0) << error_.str();
    EXPECT_EQ(
        output_.str(),
        "O papel \"postos da loja\" tem o que um posto precisa. A auditoria ele lê e continua; o que está "
        "nela só o dono das tabelas pode mudar.\n");
    EXPECT_TRUE(AddAppointments(*OpenDatabase(Desk()), Bath("02/12/2026"), Somebody).IsDone());
}

TEST_F(PostgresqlDeskRole, IsNamedByWhoeverAsksForItsRights)
{
    EXPECT_EQ(Run({"server-roles", shop_.Address(), "--run"}), 2);
    EXPECT_NE(error_.str().find("Informe com --role o papel do servidor com que os postos se conectam."),
              std::string::npos)
        << error_.str();
    EXPECT_THROW(OpenDatabase(Desk()), Failure);
}

TEST_F(PostgresqlDeskRole, ArchivesNothingAndTheOwnerNamesAFileTheFirstTime)
{
    GiveToDesks(shop_.Address(), Role);
    const auto archive = [this](const std::string& address, const std::vector<std::string>& more) {
        std::vector<std::string> words = {"archive-audit", address, "--until", "2025"};
        words.insert(words.end(), more.begin(), more.end());
        return Run(words);
    };
    const std::string file = folder_ / "velha.auditoria";
    shop_.Run("insert into auditoria (momento, usuario, tabela, chave, operacao) values"
              " ('2025-03-01 09:00:00', '7 - Lia', 'cliente', 10, 'exclusao')");
    EXPECT_EQ(archive(Desk(), {"--to", file}), 1);
    EXPECT_NE(error_.str().find("Só o dono do banco de dados pode arquivar a auditoria de \""),
              std::string::npos)
        << error_.str();
    EXPECT_NE(error_.str().find("Em um servidor, use o endereço dele."), std::string::npos) << error_.str();
    EXPECT_EQ(archive(shop_.Address(), {}), 1);
    EXPECT_NE(error_.str().find("Informe o arquivo em que a auditoria deste servidor é guardada."),
              std::string::npos)
        << error_.str();
    EXPECT_EQ(archive(shop_.Address(), {"--to", file}), 0) << error_.str();
    EXPECT_EQ(output_.str(), "1 linha da auditoria até 2025 foi para \"" + file + "\".\n");
    EXPECT_EQ(archive(shop_.Address(), {}), 0) << "it is known from then on\n" << error_.str();
}

TEST_F(PostgresqlDeskRole, IsNeitherTheOwnerNorMissing)
{
    const auto refusal = [&](const std::string& address, const std::string& role) {
        return FailureOf([&] { GiveToDesks(address, role); });
    };
    EXPECT_NE(refusal(shop_.Address(), "postgres").find("é dono das tabelas"), std::string::npos);
    EXPECT_NE(FailureOf([&] { StatementsForDesks(shop_.Address(), "postgres"); }).find("é dono das tabelas"),
              std::string::npos);
    EXPECT_NE(refusal(shop_.Address(), "nenhum").find("não existe no servidor"), std::string::npos);
    const std::string file = folder_ / "loja.db";
    EXPECT_EQ(refusal(file, Role), "\"" + file + "\" é um arquivo: papéis só há em um servidor.");
    GiveToDesks(shop_.Address(), Role);
    const std::string told = refusal(Desk(), Role);
    EXPECT_TRUE(told.starts_with("Só o dono das tabelas de \"")) << told;
    EXPECT_TRUE(told.ends_with("\" pode dar e tirar direitos. Use o endereço dele.")) << told;
}

} // namespace kova::family::test
