#include "tests/support/own_file.hpp"
#include "tests/support/small_files.hpp"
#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/engine/unfinished_file.hpp"
#include "system/path_text.hpp"

namespace kova::data::test {

namespace {

namespace fs = std::filesystem;

class Export : public ImportTest {
protected:
    Export() { ImportShop(); }

    int ExportTo(const std::string& path, std::vector<std::string> options = {})
    {
        options.insert(options.begin(), {"export", Database(), "clientes", path});
        return Run(options);
    }
};

} // namespace

TEST_F(Export, TellsHowMuchItWrote)
{
    EXPECT_EQ(ExportTo(File("saida.csv")), 0);
    EXPECT_EQ(Output(), "2 linhas exportadas em UTF-8.\n");
    EXPECT_EQ(Error(), "");
    EXPECT_FALSE(fs::exists(system::PathOf(File("saida.csv.parcial"))));
}

TEST_F(Export, TellsHowFarItIsFromMoreThanFiveThousandRecordsOn)
{
    std::string content = "Nome\n";
    for (int number = 1; number <= 4998; ++number)
        content += "Ana " + std::to_string(number) + "\n";
    ASSERT_EQ(Import("clientes", content), 0) << Error();
    EXPECT_EQ(ExportTo(File("saida.csv")), 0);
    EXPECT_EQ(Output(), "5000 linhas exportadas em UTF-8.\n");
    EXPECT_EQ(Error(), "");
    ASSERT_EQ(Import("clientes", "Nome\nRui\n"), 0) << Error();
    EXPECT_EQ(ExportTo(File("outra.csv")), 0);
    EXPECT_NE(Error().find("Exportação: 100% (5001 de 5001)\n"), std::string::npos) << Error();
}

TEST_F(Export, NeverReplacesAFile)
{
    kova::test::WriteFile(File("saida.csv"), "nota");
    EXPECT_EQ(ExportTo(File("saida.csv")), 1);
    EXPECT_EQ(Error(),
              "agenda-data: O arquivo \"" + File("saida.csv")
                  + "\" já existe. Escolha outro nome ou apague o arquivo.\n");
    EXPECT_EQ(kova::test::ContentOf(File("saida.csv")), "nota");
}

TEST_F(Export, IsForItsOwnerAlone)
{
    EXPECT_EQ(ExportTo(File("saida.csv")), 0);
    EXPECT_TRUE(kova::test::IsForItsOwnerAlone(File("saida.csv")));
}

TEST_F(Export, IsMadeByOneAtATime)
{
    const family::UnfinishedFile other(File("saida.csv"));
    EXPECT_EQ(ExportTo(File("saida.csv")), 1);
    EXPECT_NE(Error().find("está sendo feito por outro programa"), std::string::npos) << Error();
}

TEST_F(Export, RefusesAFolderThatCannotBeWritten)
{
    EXPECT_EQ(ExportTo(File("pasta/saida.csv")), 1);
    EXPECT_NE(Error().find("saida.csv\" não existe. Verifique o caminho."), std::string::npos) << Error();
    EXPECT_EQ(ExportTo("/proc/saida.csv"), 1);
    EXPECT_NE(Error().find("\"/proc/saida.csv\" não "), std::string::npos) << Error();
}

TEST_F(Export, LeavesNothingOnAFullDisk)
{
    const std::string demo = Place("demonstracao"), path = File("saida.csv");
    ASSERT_EQ(Run({"demo", demo}), 0);
    {
        // Enough for what the engine puts beside the database.
        const kova::test::SmallFiles full(100'000);
        EXPECT_EQ(Run({"export", demo, "agendamentos", path}), 1);
    }
    EXPECT_NE(Error().find("\"" + path + "\" não pode ser gravado. O disco está cheio."), std::string::npos)
        << Error();
    EXPECT_FALSE(fs::exists(system::PathOf(path)));
    EXPECT_FALSE(fs::exists(system::PathOf(path + ".parcial")));
    EXPECT_EQ(Run({"export", demo, "agendamentos", path}), 0);
    EXPECT_GT(fs::file_size(system::PathOf(path)), 100'000u);
}

TEST_F(Export, WritesLatin1AndCommasWhenAsked)
{
    ASSERT_EQ(ExportTo(File("saida.csv"), {"--encoding", "latin-1", "--separator", ","}), 0) << Error();
    EXPECT_EQ(Output(), "2 linhas exportadas em Latin-1.\n");
    const std::string content = kova::test::ContentOf(File("saida.csv"));
    EXPECT_EQ(content.substr(0, 7),
              "C\xF3"
              "digo,");
    EXPECT_NE(content.find("\r\n10,PF,Jos\xE9 Pe\xE7"
                           "anha,"),
              std::string::npos);
}

TEST_F(Export, NamesALineThatLatin1CannotHold)
{
    ASSERT_EQ(Import("clientes", "Nome\nCafé €\n"), 0);
    EXPECT_EQ(ExportTo(File("saida.csv"), {"--encoding", "latin-1"}), 1);
    EXPECT_NE(Error().find("não existem em Latin-1. Use utf-8. (12;PF;Café €;"), std::string::npos)
        << Error();
    EXPECT_FALSE(fs::exists(system::PathOf(File("saida.csv"))));
    EXPECT_FALSE(fs::exists(system::PathOf(File("saida.csv.parcial"))));
}

TEST_F(Export, NeedsADatabaseAndARegister)
{
    EXPECT_EQ(Run({"export", File("outra.db"), "clientes", File("saida.csv")}), 1);
    EXPECT_NE(Error().find("não existe"), std::string::npos);
    EXPECT_EQ(Run({"export", Database(), "fornecedores", File("saida.csv")}), 2);
    EXPECT_EQ(ExportTo(File("saida.csv"), {"--encoding", "x"}), 2);
    EXPECT_FALSE(fs::exists(system::PathOf(File("saida.csv"))));
}

} // namespace kova::data::test
