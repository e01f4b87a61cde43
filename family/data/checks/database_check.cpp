#include "family/data/checks/database_check.hpp"

#include "family/data/sources/data_source.hpp"

namespace kova::family {

namespace {

void CheckFile(Database& database, DatabaseReport& report)
{
    std::string verdict;
    database.Session() << "pragma integrity_check(1)", soci::into(verdict);
    if (verdict != "ok")
        report.problems.push_back("O banco de dados \"" + database.Path() + "\" está danificado: " + verdict);
}

/// The pages are the server's own matter. A restoration that has failed half-way leaves tables without their
/// constraints, or with such as the rows were never held against.
void CheckServer(Database& database, DatabaseReport& report)
{
    std::size_t held = 0;
    database.Session() << "select count(*) from pg_constraint where contype = 'f' and convalidated"
                          " and connamespace = current_schema()::regnamespace",
        soci::into(held);
    const std::size_t expected = References(database).size();
    if (held < expected)
        report.problems.push_back("O servidor confere só " + std::to_string(held) + " das "
                                  + std::to_string(expected)
                                  + " referências entre as tabelas. Restaure uma cópia em um banco vazio.");
}

void CheckReferences(Database& database, DatabaseReport& report)
{
    for (const Reference& reference : References(database)) {
        const std::string table = reference.table, column = reference.column;
        long long lost = 0;
        database.Session() << "select count(*) from " + table + " t where t." + column
                + " is not null and not exists (select 1 from " + reference.target + " alvo where alvo."
                + reference.key + " = t." + column + ")",
            soci::into(lost);
        if (lost > 0)
            report.problems.push_back(table + ": " + std::to_string(lost) + " referências sem registro em "
                                      + column + ".");
    }
}

} // namespace

DatabaseReport CheckDatabase(const std::string& path)
{
    const std::unique_ptr<Database> database = OpenForReading(path);
    DatabaseReport report;
    try {
        report.version = StoredVersion(database->Session());
        database->GetDialect().IsServer() ? CheckServer(*database, report) : CheckFile(*database, report);
        CheckReferences(*database, report);
        report.tables = CountRows(*database);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(path, cause);
    }
    return report;
}

} // namespace kova::family
