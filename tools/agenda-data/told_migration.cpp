#include "tools/agenda-data/told_migration.hpp"

#include "family/data/checks/rule_check.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/sources/data_source.hpp"

#include <memory>
#include <vector>

namespace kova::data {

namespace {

/// What the new schema would not take any more stays as it was; somebody should know.
void TellBrokenRows(const std::string& source, std::ostream& error)
{
    const std::unique_ptr<family::Database> database = family::OpenForReading(source);
    std::vector<std::string> problems;
    try {
        family::FindBrokenRows(*database, problems);
    } catch (const soci::soci_error& cause) {
        throw family::TranslatedFailure(source, cause);
    }
    if (problems.empty())
        return;
    error << "Estes registros não seguem as regras e ficaram como estavam; corrija-os na agenda:\n";
    for (const std::string& problem : problems)
        error << problem << "\n";
}

} // namespace

void TellMigration(const std::string& source, const family::MigrationReport& report, std::ostream& output,
                   std::ostream& error)
{
    output << "Banco de dados atualizado da versão " << report.before << " para a versão " << report.after
           << ".\n"
           << "Cópia de antes da atualização: " << report.copy << "\n";
    TellBrokenRows(source, error);
}

void BringFileUpToDate(const std::string& source, std::ostream& error)
{
    if (family::IsServer(source))
        return;
    family::MigrationReport report;
    family::OpenDatabase(source, family::CurrentMigrations(), &report);
    if (report.before != report.after)
        TellMigration(source, report, error, error);
}

} // namespace kova::data
