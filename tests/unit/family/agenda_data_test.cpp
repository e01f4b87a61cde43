#include "tests/unit/family/shop_fixture.hpp"

#include "tools/agenda-data/commands.hpp"

#include <sstream>

namespace kova::family::test {

namespace {

class AgendaData : public testing::Test {
protected:
    int Run(std::vector<std::string> words)
    {
        std::vector<const char*> arguments;
        for (const std::string& word : words)
            arguments.push_back(word.c_str());
        output_.str("");
        error_.str("");
        return data::Run(arguments, {{2026, 11, 20}, {9, 0, 0}}, output_, error_);
    }

    bool Said(const std::string& words) const { return output_.str().find(words) != std::string::npos; }
    bool Complained(const std::string& words) const { return error_.str().find(words) != std::string::npos; }

    TemporaryFolder folder_;
    std::ostringstream output_, error_;
};

} // namespace

TEST_F(AgendaData, MakesAndChecksADemonstration)
{
    EXPECT_EQ(Run({"demo", folder_ / "a.db"}), 0);
    EXPECT_EQ(Run({"demo", folder_ / "b.db", "--date", "20/11/2026"}), 0);
    EXPECT_EQ(ContentOf(folder_ / "a.db"), ContentOf(folder_ / "b.db"));
    EXPECT_EQ(Run({"check", folder_ / "a.db"}), 0);
    EXPECT_TRUE(Said("cliente: 400\n"));
    EXPECT_TRUE(Said("está íntegro"));
    EXPECT_EQ(error_.str(), "");
}

TEST_F(AgendaData, GeneratesAsManyAsAskedFor)
{
    EXPECT_EQ(Run({"generate", "--customers", "50", folder_ / "a.db", "--appointments", "700"}), 0);
    EXPECT_EQ(Run({"check", folder_ / "a.db"}), 0);
    EXPECT_TRUE(Said("cliente: 50\n"));
    EXPECT_TRUE(Said("agendamento: 700\n"));
}

TEST_F(AgendaData, NeverReplacesAFile)
{
    WriteContent(folder_ / "a.db", "nota");
    EXPECT_EQ(Run({"demo", folder_ / "a.db"}), 1);
    EXPECT_TRUE(Complained("já existe"));
    EXPECT_EQ(ContentOf(folder_ / "a.db"), "nota");
}

TEST_F(AgendaData, TellsWhatIsWrongWithAFile)
{
    WriteContent(folder_ / "a.db", "nota");
    EXPECT_EQ(Run({"check", folder_ / "a.db"}), 1);
    EXPECT_TRUE(Complained("não é um banco de dados"));
    EXPECT_EQ(Run({"check", folder_ / "b.db"}), 1);
    EXPECT_TRUE(Complained("não existe"));
}

TEST_F(AgendaData, FindsReferencesThatLeadNowhere)
{
    Run({"demo", folder_ / "a.db"});
    {
        Database database(SqliteDialect(), "dbname=" + folder_ / "a.db", "a");
        database.Session() << "pragma foreign_keys = off";
        database.Session() << "delete from raca where codigo = 1";
    }
    EXPECT_EQ(Run({"check", folder_ / "a.db"}), 1);
    EXPECT_TRUE(Complained("referências sem registro"));
}

TEST_F(AgendaData, BacksUpAndRestores)
{
    Run({"demo", folder_ / "a.db"});
    EXPECT_EQ(Run({"backup", folder_ / "a.db", folder_ / "copia.bak"}), 0);
    EXPECT_TRUE(Said("cliente: 400\n"));
    EXPECT_TRUE(Said("Cópia feita e conferida: " + folder_ / "copia.bak"));
    EXPECT_TRUE(Complained("Cópia: 100%"));
    EXPECT_EQ(Run({"restore", folder_ / "copia.bak", folder_ / "b.db"}), 0);
    EXPECT_TRUE(Said("cliente: 400\n"));
    EXPECT_EQ(Run({"check", folder_ / "b.db"}), 0);
    EXPECT_EQ(Run({"restore", folder_ / "copia.bak", folder_ / "a.db"}), 1);
    EXPECT_TRUE(Complained("já existe"));
}

TEST_F(AgendaData, RefusesAWrongCommandLine)
{
    const std::string file = folder_ / "a.db";
    for (const std::vector<std::string>& words :
         std::vector<std::vector<std::string>>{{},
                                               {"apagar", file},
                                               {"demo"},
                                               {"demo", file, file},
                                               {"demo", file, "--date"},
                                               {"demo", file, "--date", "31/02/2026"},
                                               {"demo", file, "--customers", "5"},
                                               {"generate", file, "--customers", "0"},
                                               {"generate", file, "--appointments", "12x"},
                                               {"check", file, "--date", "20/11/2026"},
                                               {"backup", file},
                                               {"restore", file}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_TRUE(Complained("Uso:"));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
}

TEST_F(AgendaData, ExplainsItself)
{
    EXPECT_EQ(Run({"--help"}), 0);
    EXPECT_TRUE(Said("Uso:"));
    EXPECT_EQ(Run({"--version"}), 0);
    EXPECT_TRUE(Said("agenda-data "));
}

} // namespace kova::family::test
