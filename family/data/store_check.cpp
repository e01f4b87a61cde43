#include "family/data/store_check.hpp"

#include "family/data/data_source.hpp"
#include "family/data/server_connection.hpp"

namespace kova::family {

namespace {

/// A server looks after both itself.
void FindProblems(soci::session& session, const std::string& path, StoreReport& report)
{
    if (IsServer(path))
        return;
    std::string verdict;
    session << "pragma integrity_check(1)", soci::into(verdict);
    if (verdict != "ok")
        report.problems.push_back("O banco de dados \"" + path + "\" está danificado: " + verdict);
    long long orphans = 0;
    session << "select count(*) from pragma_foreign_key_check", soci::into(orphans);
    if (orphans > 0)
        report.problems.push_back("O banco de dados \"" + path + "\" tem " + std::to_string(orphans)
                                  + " referências sem registro.");
}

} // namespace

StoreReport CheckStore(const std::string& path)
{
    const std::unique_ptr<Database> database = OpenForReading(path);
    StoreReport report;
    try {
        soci::session& session = database->Session();
        report.version = StoredVersion(session);
        FindProblems(session, path, report);
        report.tables = CountRows(*database);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(path, cause);
    }
    return report;
}

} // namespace kova::family
