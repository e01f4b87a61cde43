// The library with what needs the client library of servers: loaded where a server is asked for, and only
// there.

#include "tests/support/postgres_server.hpp"
#include "tests/unit/host/program_run.hpp"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace kova::host::test {

namespace {

using Files = std::set<std::string>;

constexpr const char* OfServers[] = {"libkovaris-postgresql.so", "libsoci_postgresql.so", "libpq.so"};

/// The files of libraries without their versions, as the loader has told of them.
Files LibrariesIn(const std::string& told)
{
    const std::regex loaded("calling init: \\S*/([^/\\s]+\\.so)");
    Files files;
    for (std::sregex_iterator at(told.begin(), told.end(), loaded), end; at != end; ++at)
        files.insert((*at)[1]);
    return files;
}

/// Programs of a folder, each run with the loader's own account of what it has loaded.
class ServerLibrary : public testing::Test {
protected:
    ProgramResult Run(const std::string& program, std::vector<std::string> arguments)
    {
        const fs::path account = home_ / "carregadas";
        arguments.insert(
            arguments.begin(),
            {"LD_DEBUG=libs", "LD_DEBUG_OUTPUT=" + account.string(), (programs_ / program).string()});
        const ProgramResult result = RunProgram("/usr/bin/env", arguments, home_.Path());
        loaded_.clear();
        for (const fs::directory_entry& entry : fs::directory_iterator(home_.Path())) {
            // The account bears the number of the process behind its name.
            if (!entry.path().filename().string().starts_with("carregadas."))
                continue;
            loaded_.merge(LibrariesIn(ContentOf(entry.path())));
            fs::remove(entry.path());
        }
        return result;
    }

    /// The programs are a copy, without the library.
    void TakeTheLibraryAway()
    {
        programs_ = CopyOfPrograms(home_.Path());
        fs::remove(Library());
    }
    fs::path Library() const { return programs_ / "libkovaris-postgresql.so"; }

    void ExpectLoaded(const std::string& file, bool loaded)
    {
        EXPECT_EQ(loaded_.count(file) == 1, loaded) << file;
    }
    void ExpectOfServersLoaded(bool loaded)
    {
        for (const char* file : OfServers)
            ExpectLoaded(file, loaded);
    }

    void MakeShop(const std::string& place)
    {
        const ProgramResult made = Run("agenda-data", {"create", place, "--company", "Pet Shop Céu"});
        ASSERT_EQ(made.status, 0) << made.errors;
    }
    /// Without a display the program tells the day and ends.
    ProgramResult Open(const std::string& place) { return Run("kovaris", {"--database", place}); }
    void ExpectOpens(const std::string& place)
    {
        const ProgramResult result = Open(place);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_NE(result.output.find("Agenda de "), std::string::npos) << result.output;
    }
    static void ExpectRefusal(const ProgramResult& result, const std::string& words)
    {
        EXPECT_EQ(result.status, 1) << result.output << result.errors;
        EXPECT_NE(result.errors.find(words), std::string::npos) << "\"" << words << "\" is not in:\n"
                                                                << result.errors;
    }

    const TemporaryFolder home_;
    fs::path programs_ = BuildFolder();
    Files loaded_;
};

} // namespace

TEST_F(ServerLibrary, IsNotLoadedForAShopInAFile)
{
    const std::string shop = home_ / "loja.db";
    MakeShop(shop);
    ExpectLoaded("libsoci_sqlite3.so", true);
    ExpectOfServersLoaded(false);
    ExpectOpens(shop);
    ExpectLoaded("libKOVA_N_Familia.so", true);
    ExpectOfServersLoaded(false);
    ExpectRefusal(Open(home_ / "nenhuma.db"), "nenhuma.db");
    ExpectOfServersLoaded(false);
}

TEST_F(ServerLibrary, IsLoadedForAShopOnPostgresql)
{
    const kova::test::PostgresDatabase database(kova::test::PostgresServer::Shared());
    MakeShop(database.Address());
    ExpectOfServersLoaded(true);
    ExpectOpens(database.Address());
    ExpectOfServersLoaded(true);
}

TEST_F(ServerLibrary, IsLookedForBesideTheProgramAndNowhereElse)
{
    programs_ = CopyOfPrograms(home_.Path());
    ExpectRefusal(Open("postgresql://maria@/loja?host=" + home_.Path().string()),
                  "O servidor não pode ser alcançado.");
    ExpectOfServersLoaded(true);
    fs::remove(Library());
    ExpectRefusal(Open("postgresql://maria@/loja?host=" + home_.Path().string()), Library().string());
    ExpectOfServersLoaded(false);
}

TEST_F(ServerLibrary, ThatIsMissingIsNamedWithWhatToDo)
{
    TakeTheLibraryAway();
    const std::string words = "Esta instalação não tem a parte que fala com servidores: falta o arquivo \""
        + Library().string() + "\". Instale o programa novamente";
    ExpectRefusal(Open("postgresql://maria@servidor/loja"), words);
    ExpectRefusal(Run("agenda-data", {"check", "postgresql://maria@servidor/loja"}), words);
}

TEST_F(ServerLibrary, ThatIsMissingIsNotMissedByAShopInAFile)
{
    TakeTheLibraryAway();
    const std::string shop = home_ / "loja.db";
    MakeShop(shop);
    ExpectOpens(shop);
}

TEST_F(ServerLibrary, ThatIsNoneIsNamedWithTheLoadersReason)
{
    TakeTheLibraryAway();
    WriteFile(Library(), "isto não é uma biblioteca");
    const ProgramResult result = Run("agenda-data", {"check", "postgresql://maria@servidor/loja"});
    ExpectRefusal(result, "O arquivo \"" + Library().string() + "\" pode estar danificado");
    ExpectRefusal(result, "Detalhe técnico: ");
}

TEST_F(ServerLibrary, ThatIsAnotherIsRefused)
{
    TakeTheLibraryAway();
    fs::copy(programs_ / "libKOVA_A_Agenda.so", Library());
    ExpectRefusal(Run("agenda-data", {"check", "postgresql://maria@servidor/loja"}),
                  "A parte do programa que fala com servidores não pode ser carregada.");
}

} // namespace kova::host::test
