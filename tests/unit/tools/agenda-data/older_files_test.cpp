#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/migrations/current_migrations.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_connection.hpp"
#include "family/data/sources/file_migration.hpp"
#include "system/path_text.hpp"

#include <filesystem>
#include <map>
#include <set>

// What becomes of a file of the schema before this one when a command is given it.

namespace kova::data::test {

namespace {

using kova::test::ContentOf;
using kova::test::WriteFile;

const int Newest = family::NewestVersion(family::CurrentMigrations());

using Words = std::vector<std::string>;

class OlderFiles : public ImportTest {
protected:
    OlderFiles()
    {
        WriteFile(File("tipos.csv"), "Nome\nBanho\n");
        std::filesystem::create_directory(system::PathOf(File("pasta")));
        family::Database database(family::SqliteDialect(), family::FileConnection(older_), older_);
        family::Migrate(database.Session(), family::SqliteDialect(),
                        family::CurrentMigrations().first(static_cast<std::size_t>(Newest) - 1));
    }

    /// The command lines of each command that carry something out, and those that only look.
    struct Lines {
        std::vector<Words> writing, looking;
    };

    std::map<std::string, Lines> LinesOfCommands() const
    {
        const std::string types = File("tipos.csv"), made = File("nova.db");
        return {
            {"create", {{}, {{older_, "--company", "Céu"}}}},
            {"demo", {{}, {{older_}}}},
            {"generate", {{}, {{older_}}}},
            {"migrate", {{{older_}}, {}}},
            {"check", {{}, {{older_}}}},
            {"import",
             {{{older_, "tipos", types}, {older_, "tipos", types, "--skip-existing"}},
              {{older_, "tipos", types, "--dry-run"}, {older_, "tipos", File("nada.csv")}}}},
            {"undo-import", {{{older_}, {older_, "--import", "3"}}, {{older_, "--list"}}}},
            {"export", {{}, {{older_, "tipos", File("saida.csv")}}}},
            {"backup", {{}, {{older_, File("copia.bak")}}}},
            {"restore", {{}, {{older_, made}, {made, older_}}}},
            {"copy", {{}, {{older_, made}, {made, older_}}}},
            {"history", {{}, {{older_, "3"}}}},
            {"undelete", {{{older_, "3"}}, {{older_, "x"}}}},
            {"person", {{}, {{older_, "--customer", "3", "--to", File("pasta")}}}},
            {"forget", {{{older_, "--customer", "3", "--confirm"}}, {{older_, "--customer", "3"}}}},
            {"server-roles", {{}, {{older_, "--role", "postos"}, {older_, "--role", "postos", "--run"}}}},
            {"reset-password", {{{older_, "--user", "Ana"}}, {{older_}}}},
            {"archive-audit", {{{older_, "--until", "2025"}}, {{older_}, {older_, "--until", "2026"}}}},
        };
    }

    int RunCommand(const std::string& name, Words words)
    {
        words.insert(words.begin(), name);
        return Run(words);
    }

    static int VersionOf(const std::string& file)
    {
        return family::StoredVersion(family::OpenForReading(file)->Session());
    }

    const std::string older_ = File("antiga.db"), copy_ = family::BackupName(older_, Newest);
};

/// Those that the help tells of.
std::set<std::string> CommandsIn(const std::string& help)
{
    std::set<std::string> commands;
    std::istringstream lines(help.substr(help.find("\nComandos:\n") + 1));
    std::string line;
    for (std::getline(lines, line); std::getline(lines, line) && !line.empty();) {
        if (line.starts_with("  ") && line[2] != ' ')
            commands.insert(line.substr(2, line.find(' ', 2) - 2));
    }
    return commands;
}

} // namespace

TEST_F(OlderFiles, AreTriedWithEveryCommand)
{
    Run({"--help"});
    std::set<std::string> tried;
    for (const auto& [name, lines] : LinesOfCommands())
        tried.insert(name);
    EXPECT_EQ(tried, CommandsIn(Output()));
}

TEST_F(OlderFiles, AreBroughtUpToDateByWhatWritesWhichSaysSoAndWhereTheCopyLies)
{
    const std::string before = ContentOf(older_);
    const std::string told = "Banco de dados atualizado da versão " + std::to_string(Newest - 1)
        + " para a versão " + std::to_string(Newest) + ".\nCópia de antes da atualização: " + copy_ + "\n";
    for (const auto& [name, lines] : LinesOfCommands()) {
        for (const Words& words : lines.writing) {
            RunCommand(name, words);
            EXPECT_EQ(VersionOf(older_), Newest) << name;
            ASSERT_TRUE(std::filesystem::exists(system::PathOf(copy_))) << name;
            EXPECT_EQ(VersionOf(copy_), Newest - 1) << name;
            EXPECT_NE((name == "migrate" ? Output() : Error()).find(told), std::string::npos)
                << name << ": " << Output() << Error();

            RunCommand(name, words);
            EXPECT_EQ((Output() + Error()).find("atualizado"), std::string::npos) << name;
            std::filesystem::remove(system::PathOf(copy_));
            WriteFile(older_, before);
        }
    }
}

TEST_F(OlderFiles, AreLeftAsTheyAreByWhatOnlyLooks)
{
    const std::string before = ContentOf(older_);
    for (const auto& [name, lines] : LinesOfCommands()) {
        for (const Words& words : lines.looking) {
            RunCommand(name, words);
            EXPECT_EQ(ContentOf(older_), before) << name;
            EXPECT_FALSE(std::filesystem::exists(system::PathOf(copy_))) << name;
            EXPECT_EQ((Output() + Error()).find("atualizado"), std::string::npos) << name;
        }
    }
}

TEST_F(OlderFiles, NameTheRowsThatAreAgainstTheRulesWhereACommandBringsThemUpToDate)
{
    const std::string ruleless = File("antes-das-regras.db");
    {
        family::Database database(family::SqliteDialect(), family::FileConnection(ruleless), ruleless);
        family::Migrate(database.Session(), family::SqliteDialect(), family::CurrentMigrations().first(5));
        database.Session() << "insert into funcionario values (1, 'Lia', 'Lia', 'lia', 1, 3)";
    }
    EXPECT_EQ(Run({"import", ruleless, "tipos", File("tipos.csv")}), 0) << Error();
    const std::string told =
        "ficaram como estavam; corrija-os na agenda:\nfuncionario 1: a situação não existe.\n";
    EXPECT_NE(Error().find(told), std::string::npos) << Error();
}

} // namespace kova::data::test
