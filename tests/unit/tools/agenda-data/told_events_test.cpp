// What is done with a shop as a whole leaves a line in its audit.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/checks/audit_check.hpp"
#include "family/data/engine/dialect.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_connection.hpp"
#include "host/session/computer_user.hpp"
#include "system/computer_name.hpp"
#include "system/path_text.hpp"

#include <filesystem>

namespace kova::data::test {

namespace fs = std::filesystem;

class ToldEvents : public ImportTest {
protected:
    ToldEvents() { ImportShop(); }

    /// Behind moment, user and computer.
    /// A path as a text of JSON.
    static std::string InJson(const std::string& path)
    {
        std::string text = "\"";
        for (const char character : path)
            text += character == '\\' ? std::string("\\\\") : std::string(1, character);
        return text + "\"";
    }

    std::string LinesOf(const std::string& operation)
    {
        return Ask("select tabela || ' ' || chave || ' ' || depois from auditoria where operacao = '"
                   + operation + "' order by codigo");
    }
    static std::vector<std::string> Broken(const std::string& database)
    {
        return family::FindBrokenChain(*family::OpenForReading(database));
    }
};

TEST_F(ToldEvents, AreExports)
{
    ASSERT_EQ(Run({"export", Database(), "clientes", File("saida.csv")}), 0) << Error();
    EXPECT_EQ(LinesOf("exportacao"),
              "exportacao 0 {\"cadastro\":\"clientes\",\"arquivo\":" + InJson(File("saida.csv"))
                  + ",\"linhas\":2}");
    EXPECT_EQ(Ask("select momento || ' ' || usuario || ' ' || posto from auditoria where operacao = "
                  "'exportacao'"),
              "2026-11-20 09:00:00 0 - " + host::NameOfThisUser() + " " + system::ComputerName());
    EXPECT_EQ(Run({"export", Database(), "clientes", File("saida.csv")}), 1);
    EXPECT_EQ(Ask("select count(*) from auditoria where operacao = 'exportacao'"), "1");
    EXPECT_EQ(Broken(Database()), std::vector<std::string>{});
}

TEST_F(ToldEvents, AreExportsOfAPerson)
{
    fs::create_directory(system::PathOf(File("pessoa")));
    ASSERT_EQ(Run({"person", Database(), "--customer", "10", "--to", File("pessoa")}), 0) << Error();
    EXPECT_EQ(LinesOf("exportacao"),
              "exportacao 10 {\"pagina\":" + InJson(File("pessoa/cliente-10.html"))
                  + ",\"json\":" + InJson(File("pessoa/cliente-10.json")) + "}");
    EXPECT_EQ(Run({"person", Database(), "--customer", "99", "--to", File("pessoa")}), 1);
    EXPECT_EQ(Ask("select count(*) from auditoria where operacao = 'exportacao'"), "1");
}

TEST_F(ToldEvents, LeaveNothingInACopyThatIsExported)
{
    ASSERT_EQ(Run({"backup", Database(), File("copia.bak")}), 0) << Error();
    const std::string before = kova::test::ContentOf(File("copia.bak"));
    ASSERT_EQ(Run({"export", File("copia.bak"), "clientes", File("saida.csv")}), 0) << Error();
    EXPECT_EQ(kova::test::ContentOf(File("copia.bak")), before);
    EXPECT_EQ(LinesOf("exportacao"), "");
}

TEST_F(ToldEvents, AreRestorations)
{
    ASSERT_EQ(Run({"backup", Database(), File("copia.bak")}), 0) << Error();
    const std::string restored = Place("nova");
    ASSERT_EQ(Run({"restore", File("copia.bak"), restored}), 0) << Error();
    std::string line;
    family::OpenForReading(restored)->Session()
        << "select usuario || ' ' || operacao || ' ' || depois from auditoria order by codigo desc limit 1",
        soci::into(line);
    EXPECT_EQ(line,
              "0 - " + host::NameOfThisUser()
                  + " restauracao_de_copia {\"copia\":" + InJson(File("copia.bak")) + "}");
    EXPECT_EQ(Broken(restored), std::vector<std::string>{});
}

TEST_F(ToldEvents, AreMigrationsByTheComputersUser)
{
    const std::string older = File("antiga.db");
    {
        family::Database database(family::SqliteDialect(), family::FileConnection(older), older);
        family::Migrate(database.Session(), family::SqliteDialect(), family::CurrentMigrations().first(7));
        database.Session() << "insert into auditoria (momento, usuario, tabela, chave, operacao)"
                              " values ('2026-11-20 09:00:00', '1 - Ana', 'agendamento', 5, 'inclusao')";
    }
    ASSERT_EQ(Run({"migrate", older}), 0) << Error();
    const std::string newest = std::to_string(family::NewestVersion(family::CurrentMigrations()));
    std::string line;
    family::OpenForReading(older)->Session()
        << "select usuario || ' ' || posto || ' ' || tabela || ' ' || chave || ' ' || operacao || ' ' ||"
           " depois from auditoria order by codigo desc limit 1",
        soci::into(line);
    EXPECT_EQ(line,
              "0 - " + host::NameOfThisUser() + " " + system::ComputerName() + " versao_do_esquema " + newest
                  + " atualizacao {\"de\":7,\"para\":" + newest
                  + ",\"copia\":" + InJson(older + ".antes-da-versao-" + newest + ".bak") + "}");
    EXPECT_EQ(Broken(older), std::vector<std::string>{});
}

} // namespace kova::data::test
