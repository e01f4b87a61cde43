#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/combo_selection.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/selections/customer_selection.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_migration.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/demo/fictional_shop.hpp"
#include "system/path_text.hpp"
#include "tests/support/small_files.hpp"
#include "tests/support/sqlite_file.hpp"

#include <algorithm>
#include <thread>

namespace kova::family::test {

namespace {

const int Newest = NewestVersion(CurrentMigrations());

/// The current schema with one more step.
std::vector<Migration> With(std::vector<std::string> (*statements)(const Dialect&))
{
    std::vector<Migration> steps(CurrentMigrations().begin(), CurrentMigrations().end());
    steps.push_back({Newest + 1, statements});
    return steps;
}

const std::vector<Migration> NextVersion = With([](const Dialect&) {
    return std::vector<std::string>{"alter table usuario add column apelido text not null default ''"};
});

const std::vector<Migration> BrokenVersion = With([](const Dialect&) {
    return std::vector<std::string>{"alter table usuario add column apelido text",
                                    "update tabela_que_nao_existe set x = 1"};
});

class SchemaMigration : public testing::Test {
protected:
    SchemaMigration() : path_(folder_ / "loja.db")
    {
        CreateDatabase(path_, [](Database& database) { Insert(database, UserRow{7, "Carla"}); });
    }

    static std::string NameOfUser(Database& database)
    {
        std::string name;
        database.Session() << "select nome from usuario where codigo = 7", soci::into(name);
        return name;
    }

    /// The copies made before migrations.
    std::vector<std::string> Copies() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
            if (system::TextOf(entry.path().filename()).find(".antes-da-versao-") != std::string::npos)
                names.push_back(system::TextOf(entry.path().filename()));
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    static constexpr int ColumnsToday = 6;
    static int ColumnsOfUser(Database& database)
    {
        int columns = 0;
        database.Session() << "select count(*) from pragma_table_info('usuario')", soci::into(columns);
        return columns;
    }

    TemporaryFolder folder_;
    std::string path_;
};

} // namespace

TEST_F(SchemaMigration, MakesEveryRegister)
{
    const auto database = OpenDatabase(path_);
    for (const std::string table : {"empresa",
                                    "usuario",
                                    "tipo_de_servico",
                                    "servico",
                                    "funcionario",
                                    "especie",
                                    "raca",
                                    "cliente",
                                    "canal_de_comunicacao",
                                    "animal",
                                    "feriado",
                                    "agendamento",
                                    "pacote",
                                    "pre_venda",
                                    "auditoria",
                                    "versao_do_esquema",
                                    "gravacao",
                                    "expediente",
                                    "horario_do_funcionario",
                                    "ausencia",
                                    "papel",
                                    "papel_direito",
                                    "tentativa_de_entrada",
                                    "ajuste",
                                    "lista_de_espera",
                                    "espera_servico",
                                    "espera_funcionario"}) {
        int found = 0;
        database->Session() << "select count(*) from sqlite_master where type = 'table' and name = :nome",
            soci::use(table), soci::into(found);
        EXPECT_EQ(found, 1) << table;
    }
    EXPECT_EQ(StoredVersion(database->Session()), NewestVersion(CurrentMigrations()));
}

TEST_F(SchemaMigration, BringsAnOlderVersionUpToDateAfterACopy)
{
    const auto migrated = OpenDatabase(path_, NextVersion);
    EXPECT_EQ(StoredVersion(migrated->Session()), Newest + 1);
    EXPECT_EQ(ColumnsOfUser(*migrated), ColumnsToday + 1);
    EXPECT_EQ(NameOfUser(*migrated), "Carla");

    const std::string copy = path_ + ".antes-da-versao-" + std::to_string(Newest + 1) + ".bak";
    ASSERT_EQ(BackupName(path_, Newest + 1), copy);
    const auto former = OpenDatabase(copy);
    EXPECT_EQ(StoredVersion(former->Session()), Newest);
    EXPECT_EQ(ColumnsOfUser(*former), ColumnsToday);
    EXPECT_EQ(NameOfUser(*former), "Carla");
}

TEST_F(SchemaMigration, MakesNoCopyOfAnUpToDateDatabase)
{
    OpenDatabase(path_);
    EXPECT_FALSE(
        std::filesystem::exists(system::PathOf(BackupName(path_, NewestVersion(CurrentMigrations())))));
}

TEST_F(SchemaMigration, ThatFailsChangesNothing)
{
    EXPECT_THROW(OpenDatabase(path_, BrokenVersion), Failure);
    const auto database = OpenDatabase(path_);
    EXPECT_EQ(StoredVersion(database->Session()), Newest);
    EXPECT_EQ(ColumnsOfUser(*database), ColumnsToday);
    EXPECT_EQ(NameOfUser(*database), "Carla");
}

TEST_F(SchemaMigration, GoesAheadAfterAnAttemptThatWasCutOff)
{
    WriteContent(BackupName(path_, Newest + 1) + ".parcial", "resto");
    EXPECT_EQ(StoredVersion(OpenDatabase(path_, NextVersion)->Session()), Newest + 1);
    EXPECT_FALSE(std::filesystem::exists(system::PathOf(BackupName(path_, Newest + 1) + ".parcial")));
    EXPECT_EQ(StoredVersion(OpenDatabase(BackupName(path_, Newest + 1))->Session()), Newest);
}

TEST_F(SchemaMigration, ReplacesNoCopyThatIsThere)
{
    WriteContent(BackupName(path_, Newest + 1), "cópia anterior");
    WriteContent(BackupName(path_, Newest + 1) + ".parcial", "resto");
    OpenDatabase(path_, NextVersion);
    EXPECT_EQ(ContentOf(BackupName(path_, Newest + 1)), "cópia anterior");
    const std::string second = path_ + ".antes-da-versao-" + std::to_string(Newest + 1) + "-2.bak";
    EXPECT_EQ(BackupName(path_, Newest + 1, 2), second);
    EXPECT_EQ(StoredVersion(OpenDatabase(second)->Session()), Newest);
    EXPECT_EQ(Copies().size(), 2U);
}

TEST_F(SchemaMigration, IsMadeOnceByManyProgramsAtOnce)
{
    {
        std::vector<std::jthread> programs;
        for (int program = 0; program < 6; ++program)
            programs.emplace_back([&] {
                try {
                    OpenDatabase(path_, NextVersion);
                } catch (const Failure& failure) {
                    ADD_FAILURE() << failure.Description();
                }
            });
    }
    EXPECT_EQ(StoredVersion(OpenDatabase(path_, NextVersion)->Session()), Newest + 1);
    EXPECT_EQ(Copies().size(), 1U);
}

TEST_F(SchemaMigration, HasInItsCopyWhatADeskWroteUntilItBegan)
{
    const auto desk = OpenDatabase(path_);
    Insert(*desk, UserRow{8, "Lia"});
    OpenDatabase(path_, NextVersion);
    EXPECT_EQ(kova::test::SqliteFile(BackupName(path_, Newest + 1)).Run("select nome from usuario"),
              (std::vector<std::string>{"Carla", "Lia"}));
}

TEST_F(SchemaMigration, OfADamagedFileIsNotTried)
{
    OpenDatabase(path_)->Session() << "create table extra (texto text)";
    OpenDatabase(path_)->Session() << "insert into extra values ('a'), ('b'), ('c')";
    std::string content = ContentOf(path_);
    std::fill(content.end() - 4096 + 8, content.end(), 'x');
    WriteContent(path_, content);
    EXPECT_THROW(OpenDatabase(path_, NextVersion), Failure);
    EXPECT_EQ(Copies().size(), 0U);
    EXPECT_EQ(kova::test::SqliteFile(path_).Run("select max(versao) from versao_do_esquema").front(),
              std::to_string(Newest));
}

TEST_F(SchemaMigration, WithoutRoomForTheCopyChangesNothing)
{
    {
        // Less than the shop's tables need.
        const kova::test::SmallFiles small(60'000);
        EXPECT_THROW(OpenDatabase(path_, NextVersion), Failure);
    }
    EXPECT_TRUE(Copies().empty());
    EXPECT_EQ(StoredVersion(OpenDatabase(path_)->Session()), Newest);
}

TEST_F(SchemaMigration, OfRowsThatReferToNothingKeepsThem)
{
    Insert(*OpenDatabase(path_), SpeciesRow{1, "Canina", "canina"});
    Insert(*OpenDatabase(path_), BreedRow{1, 1, "Poodle", "poodle"});
    RunUnchecked(path_, "delete from especie");
    EXPECT_EQ(StoredVersion(OpenDatabase(path_, NextVersion)->Session()), Newest + 1);
}

TEST_F(SchemaMigration, IsRefusedToAnOlderProgram)
{
    OpenDatabase(path_, NextVersion);
    const std::string content = ContentOf(path_);
    EXPECT_TRUE(CheckDataSource(path_).has_value());
    EXPECT_EQ(ContentOf(path_), content);
}

TEST_F(SchemaMigration, FromTheFirstVersionKeepsCustomersAndMakesTheirNamesSearchable)
{
    const std::string path = folder_ / "antigo.db";
    {
        Database database(SqliteDialect(), "dbname=" + path, path);
        Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(1));
        database.Session()
            << "insert into cliente (codigo, tipo_de_pessoa, apelido, nome, documento,"
               " categoria_da_curva_abc, logradouro, numero, complemento, bairro, cidade, uf,"
               " cep, endereco_completo, endereco_completo_com_cep, tipos_e_canais,"
               " nome_de_busca, texto_de_busca) values (7, 'PF', 'Zé', 'José Antônio', '', 'A',"
               " 'Rua do Ipê', '1', '', '', '', '', '', 'Rua do Ipê, 1', 'Rua do Ipê, 1', '',"
               " 'jose antonio', 'ze\njose antonio\nrua do ipe, 1')";
        database.Session() << "insert into especie (codigo, nome, nome_de_busca) values (1, 'Ave', 'ave')";
    }
    const auto database = OpenDatabase(path);
    EXPECT_EQ(StoredVersion(database->Session()), NewestVersion(CurrentMigrations()));
    std::string names, address;
    database->Session() << "select nomes_de_busca, endereco_de_busca from cliente where codigo = 7",
        soci::into(names), soci::into(address);
    EXPECT_EQ(names, "ze\njose antonio");
    EXPECT_EQ(address, "rua do ipe, 1");
    EXPECT_EQ(SelectCustomers(*database, {"tonio", "", 0, ""}).size(), 1U);
    EXPECT_EQ(SelectSpecies(*database, 0).size(), 1U);
}

TEST_F(SchemaMigration, GivesAppointmentsAVersionAndOldAuditLinesNoDesk)
{
    const std::string path = folder_ / "antigo.db";
    {
        Database database(SqliteDialect(), "dbname=" + path, path);
        Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(3));
        for (const char* statement :
             {"insert into tipo_de_servico values (4, 'Banho', 'banho', 1)",
              "insert into servico values (2, 'Banho', 'banho', '', 4, 60, 6000, 0, null, 1)",
              "insert into funcionario values (2, 'Bia', 'Beatriz', 'beatriz', 1, 1)",
              "insert into agendamento (numero, data_inicial, hora_inicial, data_final, hora_final,"
              " tipo_do_agendamento, numero_do_tipo_de_servico, codigo_do_servico, codigo_do_funcionario,"
              " situacao, incluido_em, incluido_por) values (5, '2026-11-20', '09:00', '2026-11-20', '10:00',"
              " 1, 4, 2, 2, 1, '2026-11-01 09:00:00', 'Carla')",
              "insert into auditoria (momento, usuario, tabela, chave, operacao)"
              " values ('2026-11-01 09:00:00', '1 - Carla', 'agendamento', 5, 'inclusao')"})
            database.Session() << statement;
    }
    const auto database = OpenDatabase(path);
    EXPECT_EQ(FindByKey<AppointmentRow>(*database, 5)->versao, 1);
    std::string desk = "?";
    database->Session() << "select posto from auditoria where chave = 5", soci::into(desk);
    EXPECT_EQ(desk, "");
}

TEST_F(SchemaMigration, HasAShopOpenFromMondayToSaturdayAtAllHoursAndNobodyAway)
{
    const std::string path = folder_ / "antigo.db";
    {
        Database database(SqliteDialect(), "dbname=" + path, path);
        Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(7));
    }
    OpenDatabase(path);
    for (const std::string& shop : {path, path_}) {
        kova::test::SqliteFile file(shop);
        EXPECT_EQ(file.Run("select dia_da_semana || ' ' || hora_inicial || '-' || hora_final"
                           " from expediente order by codigo"),
                  (std::vector<std::string>{"2 00:00-24:00", "3 00:00-24:00", "4 00:00-24:00",
                                            "5 00:00-24:00", "6 00:00-24:00", "7 00:00-24:00"}));
        EXPECT_EQ(file.Run("select (select count(*) from horario_do_funcionario) + count(*) from ausencia"),
                  std::vector<std::string>{"0"});
    }
}

TEST_F(SchemaMigration, HoldsTheRowsOfAMigratedShopToTheRulesOfTheNewTables)
{
    const std::string path = folder_ / "antigo.db";
    {
        Database database(SqliteDialect(), "dbname=" + path, path);
        Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(7));
    }
    const auto database = OpenDatabase(path);
    EXPECT_THROW(database->Session() << "update expediente set dia_da_semana = 0", soci::soci_error);
    EXPECT_THROW(database->Session() << "insert into ausencia (data_inicial, hora_inicial, data_final,"
                                        " hora_final, motivo) values ('2026-12-01', '08:00', '2026-12-01',"
                                        " '18:00', '')",
                 soci::soci_error);
}

TEST_F(SchemaMigration, GivesAShopRolesAndNobodyOneOfThem)
{
    const std::string path = folder_ / "antigo.db";
    {
        Database database(SqliteDialect(), "dbname=" + path, path);
        Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(8));
        // Nobody was held to one name each.
        database.Session() << "insert into usuario (nome, situacao) values ('Carla', 1), ('Carla', 2)";
    }
    OpenDatabase(path);
    for (const std::string& shop : {path, path_}) {
        kova::test::SqliteFile file(shop);
        EXPECT_EQ(file.Run("select p.codigo || ' ' || nome || ' ' || count(*) from papel p"
                           " join papel_direito d on d.codigo_do_papel = p.codigo group by p.codigo"),
                  (std::vector<std::string>{"1 Administração 11", "2 Gerência 9", "3 Recepção 4"}));
        EXPECT_EQ(file.Run("select count(*) from usuario where codigo_do_papel is not null"
                           " or senha is not null or pin is not null"),
                  std::vector<std::string>{"0"});
        EXPECT_EQ(file.Run("select count(*) from tentativa_de_entrada"), std::vector<std::string>{"0"});
    }
    kova::test::SqliteFile file(path);
    EXPECT_EQ(file.Run("select nome || ' ' || situacao from usuario order by codigo"),
              (std::vector<std::string>{"Carla 1", "Carla 2"}));
}

TEST_F(SchemaMigration, MarksADemonstrationThatWasMadeBeforeAndNoOtherShop)
{
    int shops = 0;
    const auto marksAfter = [&](const std::vector<std::string>& before) {
        const std::string path = folder_ / ("antigo" + std::to_string(++shops) + ".db");
        {
            Database database(SqliteDialect(), "dbname=" + path, path);
            Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(11));
            Insert(database, FictionalCompany());
            for (const std::string& statement : before)
                database.Session() << statement;
        }
        const auto database = OpenDatabase(path);
        EXPECT_EQ(IsFictional(*database),
                  kova::test::SqliteFile(path).Run("select 1 from ajuste").size() == 1);
        return kova::test::SqliteFile(path).Run("select nome || '=' || valor from ajuste");
    };
    EXPECT_EQ(marksAfter({}), std::vector<std::string>{"demonstracao=sim"});
    for (const char* statement :
         {"update empresa set razao_social = 'Céu Ltda.'", "update empresa set cnpj = '11222333000181'",
          "delete from empresa", "insert into usuario (nome, codigo_do_papel) values ('Ana', 1)"})
        EXPECT_EQ(marksAfter({statement}), std::vector<std::string>()) << statement;
}

TEST_F(SchemaMigration, GivesAShopAWaitingListWithNobodyInItAndHoldsItToItsRules)
{
    const std::string path = folder_ / "antigo.db";
    {
        Database database(SqliteDialect(), "dbname=" + path, path);
        Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(13));
    }
    const auto database = OpenDatabase(path);
    EXPECT_EQ(kova::test::SqliteFile(path).Run("select (select count(*) from espera_servico)"
                                               " + (select count(*) from espera_funcionario) + count(*)"
                                               " from lista_de_espera"),
              std::vector<std::string>{"0"});
    const std::string row =
        "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
        " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
        " values (1, 1, '2026-12-01', '2026-12-31', '23456', '08:00', ";
    try {
        database->Session() << row + "'07:00', '2026-11-20 09:00:00', 'Ana')";
        ADD_FAILURE() << "hours that end before they begin";
    } catch (const soci::soci_error& refused) {
        EXPECT_NE(std::string(refused.what()).find("o fim não é posterior ao início"), std::string::npos);
    }
}

TEST_F(SchemaMigration, HasNoServiceTwiceInWhatOneCustomerWaitsFor)
{
    const auto database = OpenDatabase(path_);
    database->Session() << "pragma foreign_keys = off";
    database->Session() << "insert into espera_servico (codigo_da_espera, codigo_do_servico) values (1, 2)";
    EXPECT_THROW(database->Session()
                     << "insert into espera_servico (codigo_da_espera, codigo_do_servico) values (1, 2)",
                 soci::soci_error);
}

TEST_F(SchemaMigration, HasNoTwoSettingsOfOneName)
{
    const auto database = OpenDatabase(path_);
    database->Session() << "insert into ajuste (nome, valor) values ('bloqueio.minutos', '5')";
    EXPECT_THROW(database->Session() << "insert into ajuste (nome, valor) values ('bloqueio.minutos', '9')",
                 soci::soci_error);
}

TEST_F(SchemaMigration, HasNoTwoRolesNorUsersInThemOfOneName)
{
    const auto database = OpenDatabase(path_);
    database->Session() << "insert into usuario (nome, codigo_do_papel) values ('Bia', 3)";
    for (const char* statement :
         {"insert into papel (nome) values ('Recepção')",
          "insert into usuario (nome, codigo_do_papel) values ('Bia', 2)",
          "update usuario set codigo_do_papel = 99 where nome = 'Bia'", "delete from papel where codigo = 3"})
        EXPECT_THROW(database->Session() << statement, soci::soci_error) << statement;
    database->Session() << "insert into usuario (nome) values ('Bia')";
}

TEST_F(SchemaMigration, KeepsReferencesWhole)
{
    const auto database = OpenDatabase(path_);
    EXPECT_THROW(Insert(*database, BreedRow{1, 99, "Poodle", "poodle"}), Failure);
}

} // namespace kova::family::test
