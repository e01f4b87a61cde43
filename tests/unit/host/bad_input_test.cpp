#include "family/data/sources/data_source.hpp"
#include "tests/support/sqlite_file.hpp"
#include "tests/unit/host/program_run.hpp"

#include <gtest/gtest.h>

namespace kova::host::test {

namespace {

/// The program ends with 1, and what it says names the thing.
void ExpectRefusal(const ProgramResult& result, const std::string& name)
{
    EXPECT_EQ(result.status, 1) << result.output << result.errors;
    EXPECT_NE(result.errors.find(name), std::string::npos) << "\"" << name << "\" is not in:\n"
                                                           << result.errors;
}

ProgramResult Open(const fs::path& database, const fs::path& home)
{
    return RunKovaris({"--picture", home / "agenda.png", "--database", database}, home);
}

fs::path RegistryIn(const fs::path& home) { return home / ".local/share/kovaris/componentes.reg"; }

} // namespace

TEST(BadInput, AMissingDatabaseIsNamedAndNotMade)
{
    const TemporaryFolder home;
    ExpectRefusal(Open(home / "loja.db", home.Path()), (home / "loja.db").string());
    EXPECT_FALSE(fs::exists(home / "loja.db"));
    EXPECT_FALSE(fs::exists(home / "agenda.png"));
}

TEST(BadInput, AFolderIsNoDatabase)
{
    const TemporaryFolder home;
    fs::create_directory(home / "pasta.db");
    ExpectRefusal(Open(home / "pasta.db", home.Path()), (home / "pasta.db").string());
    EXPECT_TRUE(fs::is_empty(home / "pasta.db"));
}

TEST(BadInput, AFileOfAnotherKindIsNamedAndLeftAsItWas)
{
    const TemporaryFolder home;
    const std::string content = "Lista de compras\r\nração\r\n";
    WriteFile(home / "compras.txt", content);
    ExpectRefusal(Open(home / "compras.txt", home.Path()), (home / "compras.txt").string());
    EXPECT_EQ(ContentOf(home / "compras.txt"), content);
}

TEST(BadInput, ADatabaseOfANewerSchemaIsNamedAndLeftAsItWas)
{
    const TemporaryFolder home;
    const fs::path shop = home / "loja.db";
    family::CreateDatabase(shop, [](family::Database& database) {
        database.Session() << "insert into versao_do_esquema (versao) values (9999)";
    });
    const std::string content = ContentOf(shop);
    ExpectRefusal(Open(shop, home.Path()), shop.string());
    EXPECT_EQ(ContentOf(shop), content);
}

TEST(BadInput, AShopWithoutServiceTypesIsTold)
{
    const TemporaryFolder home;
    const fs::path shop = home / "loja.db";
    family::CreateDatabase(shop, [](family::Database&) {});
    ExpectRefusal(Open(shop, home.Path()), "Nenhum tipo de serviço cadastrado.");
}

TEST(BadInput, ADayThatCannotBeReadIsToldAndNotDrawn)
{
    const TemporaryFolder home;
    const fs::path shop = home / "loja.db";
    const ProgramResult made =
        RunProgram(BuildFolder() / "agenda-data", {"demo", shop, "--date", "25/03/2026"}, home.Path());
    ASSERT_EQ(made.status, 0) << made.errors;
    kova::test::SqliteFile(shop).Run("drop table animal");
    ExpectRefusal(
        Open(shop, home.Path()),
        "A agenda não pôde ser aberta. Corrija a causa que foi mostrada e abra o programa novamente.");
    EXPECT_FALSE(fs::exists(home / "agenda.png"));
}

TEST(BadInput, ADataFolderThatCannotBeMadeIsNamed)
{
    const TemporaryFolder home;
    WriteFile(home / ".local", "a file where a folder should be");
    ExpectRefusal(RunKovaris({"--picture", home / "agenda.png"}, home.Path()),
                  (home / ".local/share/kovaris").string());
}

TEST(BadInput, AUserWithoutAHomeIsToldSoAndNoLibraryIsLoaded)
{
    const TemporaryFolder home;
    ExpectRefusal(RunProgram("/usr/bin/env",
                             {"-u", "HOME", BuildFolder() / "kovaris", "--picture", home / "agenda.png"},
                             home.Path()),
                  "a variável HOME não indica a pasta pessoal");
    EXPECT_FALSE(fs::exists(home / "agenda.png"));
}

TEST(BadInput, APictureThatCannotBeWrittenIsNamed)
{
    const TemporaryFolder home;
    WriteFile(home / "arquivo", "");
    const fs::path picture = home / "arquivo/agenda.png";
    ExpectRefusal(RunKovaris({"--date", "25/03/2026", "--picture", picture}, home.Path()), picture.string());
}

TEST(BadInput, ACorruptRegistryLineIsNamedAndLeftAsItWas)
{
    const TemporaryFolder home;
    const std::string content = "isto não é um componente\n";
    fs::create_directories(RegistryIn(home.Path()).parent_path());
    WriteFile(RegistryIn(home.Path()), content);
    ExpectRefusal(RunKovaris({"--picture", home / "agenda.png"}, home.Path()),
                  RegistryIn(home.Path()).string());
    EXPECT_EQ(ContentOf(RegistryIn(home.Path())), content);
}

TEST(BadInput, AMissingComponentIsNamed)
{
    const TemporaryFolder home;
    const fs::path programs = CopyOfPrograms(home.Path());
    fs::remove(programs / "libKOVA_N_Familia.so");
    ExpectRefusal(RunProgram(programs / "kovaris", {"--picture", home / "agenda.png"}, home.Path()),
                  "KOVA_N_Dados.clsBanco");
}

TEST(BadInput, ALibraryThatIsNoneIsNamed)
{
    const TemporaryFolder home;
    const fs::path programs = CopyOfPrograms(home.Path());
    WriteFile(programs / "libKOVA_N_Familia.so", "isto não é uma biblioteca");
    ExpectRefusal(RunProgram(programs / "kovaris", {"--picture", home / "agenda.png"}, home.Path()),
                  (programs / "libKOVA_N_Familia.so").string());
}

} // namespace kova::host::test
