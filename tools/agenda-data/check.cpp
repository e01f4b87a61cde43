#include "family/data/archive/audit_archive.hpp"
#include "family/data/audit/archived_part.hpp"
#include "family/data/checks/audit_check.hpp"
#include "family/data/checks/audit_rights.hpp"
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

family::LongWork WorkOn(const family::DatabaseReport& report, const std::string& what,
                        Surroundings& surroundings)
{
    long long rows = 0;
    for (const family::TableCount& table : report.tables)
        rows += table.rows;
    return rows > RowsWithoutProgress ? ShownWork(surroundings.error, what) : family::LongWork();
}

/// Only what is there can be proved.
void TellArchive(family::Database& database, const family::Database* archive, Surroundings& surroundings)
{
    const std::string told = family::ToldArchive(database);
    if (archive)
        surroundings.output << "arquivo da auditoria: " << archive->Path() << "\n";
    else if (!told.empty())
        surroundings.error << "aviso: " << told
                           << " Ele não foi encontrado, e o que está nele não foi conferido; informe-o com "
                              "--archive.\n";
}

std::vector<std::string> BrokenRules(const Call& call, const family::DatabaseReport& report,
                                     Surroundings& surroundings)
{
    const std::string& source = call.Operand(0);
    const std::unique_ptr<family::Database> database = family::OpenForReading(source);
    const auto archive = family::OpenArchive(*database, call.Option("--archive"));
    TellArchive(*database, archive.get(), surroundings);
    const family::Snapshot snapshot(*database);
    try {
        std::vector<std::string> problems =
            family::FindBrokenRules(*database, surroundings.now, WorkOn(report, "Verificação", surroundings));
        for (std::string& problem :
             family::FindBrokenChain(*database, WorkOn(report, "Auditoria", surroundings), archive.get()))
            problems.push_back(std::move(problem));
        return problems;
    } catch (const std::runtime_error& cause) {
        throw family::TranslatedFailure(source, cause);
    }
}

/// Rows of a file that is damaged would only be told to break rules which nobody broke.
std::vector<std::string> ProblemsOf(const Call& call, const family::DatabaseReport& report,
                                    Surroundings& surroundings)
{
    return report.problems.empty() ? BrokenRules(call, report, surroundings) : report.problems;
}

/// The rights are a matter of the server; what is stored may be whole all the same.
void TellWideRights(const std::string& source, std::ostream& error)
{
    const std::unique_ptr<family::Database> database = family::OpenForReading(source);
    try {
        for (const std::string& role : family::WhoMayRewriteAudit(*database))
            error << "aviso: no servidor o papel \"" << role
                  << "\" pode mudar a auditoria sem ser o dono dela; \"agenda-data server-roles\" dá aos "
                     "postos só o que eles precisam.\n";
        if (!family::HasRoleOfDesks(*database))
            error
                << "aviso: no servidor só o dono das tabelas tem o que um posto precisa, e ele pode mudar a "
                   "auditoria. Crie um papel para os postos, com \"create role NOME login\", dê a ele o que "
                   "eles precisam, com \"agenda-data server-roles\", e use-o no endereço dos postos.\n";
    } catch (const std::runtime_error& cause) {
        throw family::TranslatedFailure(source, cause);
    }
}

int Run(const Call& call, Surroundings& surroundings)
{
    const family::DatabaseReport report = family::CheckDatabase(call.Operand(0));
    WriteCounts(surroundings.output, report.tables);
    surroundings.output << "versão do esquema: " << report.version << "\n";
    const std::vector<std::string> problems = ProblemsOf(call, report, surroundings);
    for (const std::string& problem : problems)
        surroundings.error << problem << "\n";
    TellWideRights(call.Operand(0), surroundings.error);
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
     "Verifica se o banco está íntegro, se o que contém segue as regras e se a auditoria\n"
     "está como foi gravada, e conta as suas linhas; escreve cada problema com a tabela e o\n"
     "número do registro. O que os cadastros não aceitariam mais, mas está lá desde antes, é\n"
     "só um aviso, como os direitos de um papel do servidor que vão além do que um posto\n"
     "precisa.",
     {"BANCO"},
     {{"--archive", "ARQUIVO", "O arquivo da auditoria (padrão: onde foi gravado, ou ao lado do banco)."}}},
    Run,
};

} // namespace kova::data
