#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/data_source.hpp"
#include "family/data/insert_row.hpp"
#include "family/data/rows.hpp"

namespace kova::family::test {

namespace {

constexpr Migration NextVersion[] = {
    {1, SchemaOfVersion1},
    {2,
     [](const Dialect&) {
         return std::vector<std::string>{"alter table usuario add column apelido text not null default ''"};
     }},
};

constexpr Migration BrokenVersion[] = {
    {1, SchemaOfVersion1},
    {2,
     [](const Dialect&) {
         return std::vector<std::string>{"alter table usuario add column apelido text",
                                         "update tabela_que_nao_existe set x = 1"};
     }},
};

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
    for (const std::string table : {"empresa", "usuario", "tipo_de_servico", "servico", "funcionario",
                                    "especie", "raca", "cliente", "canal_de_comunicacao", "animal", "feriado",
                                    "agendamento", "pacote", "pre_venda", "auditoria", "versao_do_esquema"}) {
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
    EXPECT_EQ(StoredVersion(migrated->Session()), 2);
    EXPECT_EQ(ColumnsOfUser(*migrated), 4);
    EXPECT_EQ(NameOfUser(*migrated), "Carla");

    const std::string copy = path_ + ".antes-da-versao-2.bak";
    ASSERT_EQ(BackupName(path_, 2), copy);
    const auto former = OpenDatabase(copy);
    EXPECT_EQ(StoredVersion(former->Session()), 1);
    EXPECT_EQ(ColumnsOfUser(*former), 3);
    EXPECT_EQ(NameOfUser(*former), "Carla");
}

TEST_F(SchemaMigration, MakesNoCopyOfAnUpToDateDatabase)
{
    OpenDatabase(path_);
    EXPECT_FALSE(std::filesystem::exists(BackupName(path_, NewestVersion(CurrentMigrations()))));
}

TEST_F(SchemaMigration, ThatFailsChangesNothing)
{
    EXPECT_THROW(OpenDatabase(path_, BrokenVersion), Failure);
    const auto database = OpenDatabase(path_);
    EXPECT_EQ(StoredVersion(database->Session()), 1);
    EXPECT_EQ(ColumnsOfUser(*database), 3);
    EXPECT_EQ(NameOfUser(*database), "Carla");
}

TEST_F(SchemaMigration, GoesAheadAfterAnAttemptThatWasCutOff)
{
    WriteContent(BackupName(path_, 2) + ".parcial", "resto");
    WriteContent(BackupName(path_, 2), "cópia anterior");
    EXPECT_EQ(StoredVersion(OpenDatabase(path_, NextVersion)->Session()), 2);
    EXPECT_FALSE(std::filesystem::exists(BackupName(path_, 2) + ".parcial"));
    EXPECT_EQ(StoredVersion(OpenDatabase(BackupName(path_, 2))->Session()), 1);
}

TEST_F(SchemaMigration, IsRefusedToAnOlderProgram)
{
    OpenDatabase(path_, NextVersion);
    const std::string content = ContentOf(path_);
    EXPECT_TRUE(CheckDataSource(path_).has_value());
    EXPECT_EQ(ContentOf(path_), content);
}

TEST_F(SchemaMigration, KeepsReferencesWhole)
{
    const auto database = OpenDatabase(path_);
    EXPECT_THROW(Insert(*database, BreedRow{1, 99, "Poodle", "poodle"}), Failure);
}

} // namespace kova::family::test
