#include "family/data/checks/database_check.hpp"
#include "family/data/checks/rule_check.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "family/data/sources/data_source.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/older_rows.hpp"
#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

namespace {

/// Smaller databases are looked through before anybody asks how far it is.
constexpr long long RowsWithoutProgress = 50'000;

family::LongWork WorkOn(const family::DatabaseReport& report, Surroundings& surroundings)
{
    long long rows = 0;
    for (const family::TableCount& table : report.tables)
        rows += table.rows;
    return rows > RowsWithoutProgress ? ShownWork(surroundings.error, "Verificação") : family::LongWork();
}

std::vector<std::string> BrokenRules(const std::string& source, DateTime now, const family::LongWork& work)
{
    const std::unique_ptr<family::Database> database = family::OpenForReading(source);
    const family::Snapshot snapshot(*database);
    try {
        return family::FindBrokenRules(*database, now, work);
    } catch (const std::runtime_error& cause) {
        throw family::TranslatedFailure(source, cause);
    }
}

/// Rows of a file that is damaged would only be told to break rules which nobody broke.
std::vector<std::string> ProblemsOf(const std::string& source, const family::DatabaseReport& report,
                                    Surroundings& surroundings)
{
    return report.problems.empty() ? BrokenRules(source, surroundings.now, WorkOn(report, surroundings))
                                   : report.problems;
}

int Run(const Call& call, Surroundings& surroundings)
{
    const family::DatabaseReport report = family::CheckDatabase(call.Operand(0));
    WriteCounts(surroundings.output, report.tables);
    surroundings.output << "versão do esquema: " << report.version << "\n";
    const std::vector<std::string> problems = ProblemsOf(call.Operand(0), report, surroundings);
    for (const std::string& problem : problems)
        surroundings.error << problem << "\n";
    if (!problems.empty())
        return 1;
    if (report.version == family::NewestVersion(family::CurrentMigrations()))
        TellOlderRows(call.Operand(0), surroundings.error);
    surroundings.output << "O banco de dados está íntegro.\n";
    return 0;
}

} // namespace

const Command CheckCommand{
    {"check",
     "Verifica se o banco está íntegro e se o que contém segue as regras, e conta as suas\n"
     "linhas; escreve cada problema com a tabela e o número do registro. O que os cadastros não\n"
     "aceitariam mais, mas está lá desde antes, é só um aviso.",
     {"BANCO"}},
    Run,
};

} // namespace kova::data
