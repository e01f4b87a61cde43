#include "tests/unit/family/server_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/checks/audit_check.hpp"
#include "family/data/copies/database_copy.hpp"
#include "family/data/copies/row_copy.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/numbering.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/work_rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "system/path_text.hpp"

namespace kova::family::test {

namespace fs = std::filesystem;

class DatabaseCopy : public ShopTest {
protected:
    DatabaseCopy() : shop_(host_.DataSource()), copy_(folder_ / "copia.db") { }

    static std::vector<TableSum> SumsOf(const std::string& path) { return SumTables(*OpenDatabase(path)); }

    std::string shop_, copy_;
};

TEST_F(DatabaseCopy, HasEveryValueOfEveryRow)
{
    CopyDatabase(shop_, copy_, {});
    EXPECT_EQ(SumsOf(copy_), SumsOf(shop_));
    const auto copied = OpenDatabase(copy_);
    EXPECT_EQ(FindByKey<AppointmentRow>(*copied, 2)->observacao.value, "Laço azul.");
    EXPECT_TRUE(FindByKey<AppointmentRow>(*copied, 1)->observacao.IsNull());
    EXPECT_EQ(FindByKey<CustomerRow>(*copied, 10)->nome, "José Antônio Peçanha");
}

TEST_F(DatabaseCopy, IsOpenWhenTheShopIs)
{
    const std::string hours = "select count(*) from expediente where dia_da_semana = 2";
    int rows = 1;
    OpenDatabase(shop_)->Session() << "delete from expediente where dia_da_semana = 2";
    CopyDatabase(shop_, copy_, {});
    EXPECT_EQ(SumsOf(copy_), SumsOf(shop_));
    OpenDatabase(copy_)->Session() << hours, soci::into(rows);
    EXPECT_EQ(rows, 0);
}

TEST_F(DatabaseCopy, HasRowsBeyondOnePageAndTellsHowFarItHasCome)
{
    {
        const auto database = OpenDatabase(shop_);
        soci::transaction transaction(database->Session());
        for (Key code = 1; code <= 2500; ++code)
            Insert(*database, UserRow{-1300 + code * 3, "Carla"});
        transaction.commit();
    }
    std::vector<long long> told;
    LongWork work;
    work.progress = [&](long long done, long long) { told.push_back(done); };
    CopyDatabase(shop_, copy_, work);
    EXPECT_EQ(SumsOf(copy_), SumsOf(shop_));
    EXPECT_EQ(told.size(), 4U);
}

TEST_F(DatabaseCopy, NeverGivesANumberTwice)
{
    {
        const auto database = OpenDatabase(shop_);
        Insert(*database, UserRow{7, "Carla"});
        NumberOn(*database);
        database->Session() << "delete from usuario where codigo = 7";
        database->Session() << "insert into auditoria (momento, usuario, tabela, chave, operacao)"
                               " values ('2026-11-20 09:00:00', 'Carla', 'empresa', 40, 'exclusao')";
    }
    CopyDatabase(shop_, copy_, {});
    const auto copied = OpenDatabase(copy_);
    EXPECT_EQ(InsertNew(*copied, UserRow{0, "Ana"}), 8);
    EXPECT_EQ(InsertNew(*copied, CompanyRow{0, "Filial", "", "", "", ""}), 41);
    EXPECT_EQ(InsertNew(*copied, PackageRow{0, 2, "2026-11-20 09:00:00", "Ana"}), 1);
}

TEST_F(DatabaseCopy, ReadsOneMoment)
{
    const auto desk = OpenDatabase(shop_);
    LongWork work;
    {
        soci::transaction transaction(desk->Session());
        for (Key code = 1; code <= 1000; ++code)
            Insert(*desk, UserRow{code, "Carla"});
        transaction.commit();
    }
    const std::vector<TableSum> before = SumTables(*desk);
    work.progress = [&](long long done, long long) {
        if (done == 1000)
            Insert(*desk, ServiceTypeRow{9, "Transporte", "transporte"});
    };
    CopyDatabase(shop_, copy_, work);
    EXPECT_EQ(SumsOf(copy_), before);
    EXPECT_NE(SumsOf(shop_), before);
}

TEST_F(DatabaseCopy, NeverReplacesAFile)
{
    WriteContent(copy_, "nota");
    EXPECT_THROW(CopyDatabase(shop_, copy_, {}), Failure);
    EXPECT_EQ(ContentOf(copy_), "nota");
}

TEST_F(DatabaseCopy, OfRowsThatReferToNothingIsNotMade)
{
    RunUnchecked(shop_, "delete from raca");
    EXPECT_THROW(CopyDatabase(shop_, copy_, {}), Failure);
    EXPECT_FALSE(fs::exists(system::PathOf(copy_)));
    EXPECT_FALSE(fs::exists(system::PathOf(copy_ + ".parcial")));
}

TEST_F(DatabaseCopy, OfAnOlderSchemaTellsHowToUpdateIt)
{
    OpenDatabase(shop_)->Session() << "delete from versao_do_esquema where versao > 2";
    try {
        CopyDatabase(shop_, copy_, {});
        FAIL() << "an older schema was copied";
    } catch (const Failure& failure) {
        EXPECT_NE(failure.Description().find("agenda-data migrate"), std::string::npos);
    }
    EXPECT_FALSE(fs::exists(system::PathOf(copy_)));
}

TEST_F(DatabaseCopy, SumsTellOneValueFromAnother)
{
    const std::vector<TableSum> before = SumsOf(shop_);
    const auto database = OpenDatabase(shop_);
    for (const char* change : {"update animal set porte = 3 where codigo = 50",
                               "update agendamento set observacao = '' where numero = 1",
                               "update agendamento set observacao = null where numero = 2",
                               "update cliente set nome = 'José Antonio Peçanha' where codigo = 10"}) {
        soci::transaction transaction(database->Session());
        database->Session() << change;
        EXPECT_NE(SumTables(*database), before) << change;
        transaction.rollback();
        EXPECT_EQ(SumTables(*database), before);
    }
}

namespace {

/// Rows in every table, more than are read at once, with all that a text can hold.
void FillEveryTable(const std::string& shop)
{
    const auto database = OpenDatabase(shop);
    soci::transaction transaction(database->Session());
    for (const std::string text : {"", " ", "Ação \"à vista\" 'já'; \\ %\n\r\n\t", "🐶 ß ǅ \u0301", "NULL"})
        InsertNew(*database, UserRow{0, text});
    InsertNew(*database, HolidayRow{0, "Natal", 25, 12, {}});
    InsertNew(*database, HolidayRow{0, "Carnaval", {}, {}, std::string("2027-02-09")});
    InsertNew(*database, EmployeeHoursRow{0, 1, 2, "08:00", "12:00"});
    InsertNew(*database, AbsenceRow{0, Key(1), "2026-12-01", "08:00", "2026-12-01", "24:00", "Férias"});
    InsertNew(*database, AbsenceRow{0, {}, "2026-12-24", "00:00", "2026-12-26", "12:00", "Recesso"});
    InsertNew(*database, PackageRow{0, 2, "2026-11-20 09:00:00", "Ana"});
    InsertNew(*database, PreSaleRow{0, 7, 9'000'000'000'000, 1, "2026-11-20 09:00:00"});
    const Author author{"1", "Zé", "2026-11-20 09:00:00", "BALCÃO-1"};
    for (int line = 0; line < 2500; ++line)
        AuditRemoval(*database, author, "agendamento", line,
                     AuditValues().Add("observacao", std::string("\"Laço\"\n\\")));
    for (const char* statement :
         {"insert into papel (nome) values ('Banhista')",
          "insert into papel_direito (codigo_do_papel, direito) values (4, 'agendamento.incluir')",
          "insert into usuario (nome, codigo_do_papel, senha) values ('Bia', 4,"
          " '$argon2id$v=19$m=8,t=1,p=1$c2Fs$aGFzaA')",
          "delete from papel_direito where codigo_do_papel = 2",
          "insert into tentativa_de_entrada (identificador, erros, ultimo_erro)"
          " values ('a1', 3, 1795185845)",
          "insert into ajuste (nome, valor) values ('bloqueio.minutos', '5')",
          "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
          " dias_da_semana, hora_inicial, hora_final, observacao, incluido_em, incluido_por)"
          " values (10, 50, '2026-12-01', '2026-12-31', '246', '08:00', '24:00', 'Só à tarde',"
          " '2026-11-20 09:00:00', 'Ana')",
          "insert into espera_servico (codigo_da_espera, codigo_do_servico) values (1, 1), (1, 2)",
          "insert into espera_funcionario (codigo_da_espera, codigo_do_funcionario) values (1, 2)"})
        database->Session() << statement;
    database->Session() << "insert into gravacao (identificador, momento)"
                           " values ('a1', '2026-11-20 09:00:00')";
    transaction.commit();
}

} // namespace

class DatabaseCopyPostgresql : public testing::Test {
protected:
    DatabaseCopyPostgresql()
    {
        MakeShop(file_);
        FillEveryTable(file_);
    }

    static std::vector<TableSum> SumsOf(const std::string& path) { return SumTables(*OpenForReading(path)); }

    TemporaryFolder folder_;
    std::string file_ = folder_ / "loja.db", back_ = folder_ / "volta.db";
    kova::test::PostgresDatabase server_{kova::test::PostgresServer::Shared()};
};

TEST_F(DatabaseCopyPostgresql, ThereAndBackIsEqual)
{
    const std::vector<TableSum> before = SumsOf(file_);
    for (const TableSum& table : before)
        EXPECT_GT(table.rows, 0) << table.name;
    CopyDatabase(file_, server_.Address(), {});
    EXPECT_EQ(SumsOf(server_.Address()), before);
    CopyDatabase(server_.Address(), back_, {});
    EXPECT_EQ(SumsOf(back_), before);
}

TEST_F(DatabaseCopyPostgresql, HasTheChainOfTheAuditThatGoesOn)
{
    const Author author{"1", "Zé", "2026-11-20 09:00:00", "BALCÃO-1"};
    CopyDatabase(file_, server_.Address(), {});
    AuditRemoval(*OpenDatabase(server_.Address()), author, "agendamento", 1, AuditValues());
    EXPECT_EQ(server_.Run("select count(*) from elo_da_auditoria").front(), "2501");
    EXPECT_EQ(FindBrokenChain(*OpenForReading(server_.Address())), std::vector<std::string>{});
    CopyDatabase(server_.Address(), back_, {});
    AuditRemoval(*OpenDatabase(back_), author, "agendamento", 2, AuditValues());
    EXPECT_EQ(FindBrokenChain(*OpenForReading(back_)), std::vector<std::string>{});
}

TEST_F(DatabaseCopyPostgresql, HasWhatIsWrongWithTheChainOfTheAudit)
{
    RunUnchecked(file_, "update auditoria set posto = '' where codigo = 7");
    RunUnchecked(file_,
                 "insert into auditoria (momento, usuario, tabela, chave, operacao)"
                 " values ('2026-11-20 09:00:00', 'Carla', 'empresa', 40, 'exclusao')");
    const auto problems = [](const std::string& source) { return FindBrokenChain(*OpenForReading(source)); };
    const std::vector<std::string> before = problems(file_);
    EXPECT_EQ(before.size(), 3U);
    CopyDatabase(file_, server_.Address(), {});
    EXPECT_EQ(problems(server_.Address()), before);
    CopyDatabase(server_.Address(), back_, {});
    EXPECT_EQ(problems(back_), before);
}

TEST_F(DatabaseCopyPostgresql, NeverGivesANumberTwiceThereAndBack)
{
    {
        const auto database = OpenDatabase(file_);
        Insert(*database, UserRow{30, "Carla"});
        database->Session() << "delete from usuario where codigo = 30";
    }
    CopyDatabase(file_, server_.Address(), {});
    EXPECT_EQ(InsertNew(*OpenDatabase(server_.Address()), UserRow{0, "Ana"}), 31);
    server_.Run("delete from usuario where codigo = 31");
    CopyDatabase(server_.Address(), back_, {});
    EXPECT_EQ(InsertNew(*OpenDatabase(back_), UserRow{0, "Ana"}), 32);
}

TEST_F(DatabaseCopyPostgresql, NeverGoesOverAShop)
{
    CopyDatabase(file_, server_.Address(), {});
    const std::vector<TableSum> before = SumsOf(server_.Address());
    EXPECT_THROW(CopyDatabase(file_, server_.Address(), {}), Failure);
    EXPECT_EQ(SumsOf(server_.Address()), before);
}

TEST_F(DatabaseCopyPostgresql, ThatEndsBeforeItsTimeLeavesNothing)
{
    for (const std::string& target : {server_.Address(), back_}) {
        std::stop_source stop;
        LongWork work{[&](long long done, long long) {
                          if (done == 2000)
                              stop.request_stop();
                      },
                      stop.get_token()};
        EXPECT_NE(FailureOf([&] { CopyDatabase(file_, target, work); }).find("interrompido"),
                  std::string::npos);
        EXPECT_FALSE(DataSourceExists(target));
    }
    EXPECT_TRUE(server_.Run("select 1 from information_schema.tables where table_schema = 'public'").empty());
}

} // namespace kova::family::test
