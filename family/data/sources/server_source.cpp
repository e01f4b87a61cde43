#include "family/data/sources/server_source.hpp"

#include "family/data/audit/audit_events.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "family/data/rows/numbering.hpp"
#include "family/data/sources/filled_schema.hpp"

namespace kova::family {

namespace {

constexpr int OldestServer = 150000;

/// Another program may just be copying and changing the same database, and copying is waiting for the server.
constexpr const char* WaitForMigration =
    "set lock_timeout = '10min'; set idle_in_transaction_session_timeout = 0";

std::unique_ptr<Database> Connect(const Dialect& dialect, const std::string& address)
{
    if (const auto refusal = CheckAddress(address))
        throw DatabaseFailure(*refusal);
    return std::make_unique<Database>(dialect, ConnectionTo(address), address);
}

/// Runs what asks the engine directly.
template <class Use> auto Guarded(Database& database, Use use)
{
    try {
        return use(database.Session());
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

std::string Setting(Database& database, const std::string& name)
{
    return Guarded(database, [&](soci::session& session) {
        std::string value;
        session << "show " + name, soci::into(value);
        return value;
    });
}

void RequireServer(Database& database)
{
    if (std::stoi(Setting(database, "server_version_num")) < OldestServer)
        throw DatabaseFailure("O servidor de \"" + database.Path() + "\" é da versão "
                              + Setting(database, "server_version")
                              + ". É preciso o PostgreSQL 15 ou mais novo.");
    if (Setting(database, "server_encoding") != "UTF8")
        throw DatabaseFailure("O banco de dados \"" + database.Path()
                              + "\" não guarda textos em UTF-8. Crie outro com ENCODING 'UTF8'.");
}

int ReadVersion(Database& database)
{
    return Guarded(database, [&](soci::session&) { return VersionOf(database); });
}

/// Answers the version.
int RequireTables(Database& database, Migrations migrations)
{
    const int version = ReadVersion(database);
    if (version == 0)
        throw DatabaseFailure("O banco de dados \"" + database.Path()
                              + "\" não tem as tabelas da agenda. Verifique o endereço, ou crie-as com "
                                "\"agenda-data create\".");
    if (const auto refusal = RefusalOfNewer(database.Path(), version, migrations))
        throw DatabaseFailure(*refusal);
    return version;
}

/// Of the newest version or an older one.
std::unique_ptr<Database> ConnectToTables(const Dialect& dialect, const std::string& address,
                                          Migrations migrations)
{
    std::unique_ptr<Database> database = Connect(dialect, address);
    RequireServer(*database);
    RequireTables(*database, migrations);
    return database;
}

/// Other desks may still work on an older schema, so that none changes it by itself.
std::unique_ptr<Database> ConnectAndCheck(const Dialect& dialect, const std::string& address,
                                          Migrations migrations)
{
    std::unique_ptr<Database> database = Connect(dialect, address);
    RequireServer(*database);
    const int version = RequireTables(*database, migrations), newest = NewestVersion(migrations);
    if (version < newest)
        throw DatabaseFailure(RefusalOfOlder(address, version, newest));
    database->ExpectSchema(newest);
    return database;
}

std::string NameOnServer(Database& database)
{
    return Guarded(database, [](soci::session& session) {
        std::string name;
        session << "select current_database()", soci::into(name);
        return name;
    });
}

void ForgetOldMarks(Database& database)
{
    Guarded(database, [&](soci::session& session) { session << database.GetDialect().forgetMarks; });
}

std::shared_ptr<Database> OpenUpToDate(const Dialect& dialect, const std::string& address,
                                       Migrations migrations)
{
    std::shared_ptr<Database> database = ConnectAndCheck(dialect, address, migrations);
    ForgetOldMarks(*database);
    return database;
}

} // namespace

bool ExistsOnServer(const std::string& address)
{
    try {
        return ReadVersion(*Connect(PostgresqlDialectForReading(), address)) > 0;
    } catch (const DatabaseFailure&) {
        return false;
    }
}

std::optional<std::string> CheckServerSource(const std::string& address, Migrations migrations)
{
    try {
        ConnectAndCheck(PostgresqlDialectForReading(), address, migrations);
        return std::nullopt;
    } catch (const DatabaseFailure& failure) {
        return failure.Description();
    }
}

std::shared_ptr<Database> OpenOnServer(const std::string& address, Migrations migrations)
{
    return OpenUpToDate(PostgresqlDialect(), address, migrations);
}

std::shared_ptr<Database> OpenOnServerForLongWork(const std::string& address)
{
    auto database = OpenUpToDate(PostgresqlDialectForLongWork(), address, CurrentMigrations());
    // A plan that is kept from when a table was small would go through all of it for each of many new rows.
    // Where whole tables are filled one after another there are no such plans, and making them anew takes
    // longer.
    Guarded(*database, [](soci::session& session) { session << "set plan_cache_mode = force_custom_plan"; });
    return database;
}

std::unique_ptr<Database> OpenOnServerForReading(const std::string& address)
{
    return ConnectToTables(PostgresqlDialectForReading(), address, CurrentMigrations());
}

void CreateOnServer(const std::string& address, const std::function<void(Database&)>& fill)
{
    const auto database = Connect(PostgresqlDialectForLongWork(), address);
    RequireServer(*database);
    WriteTransaction transaction(*database, WriteTransaction::Of::Schema);
    if (ReadVersion(*database) > 0)
        throw DatabaseFailure("O banco de dados \"" + address
                              + "\" já tem as tabelas da agenda. Escolha outro, que esteja vazio.");
    Guarded(*database, [&](soci::session&) { FillSchema(*database, CurrentMigrations(), fill); });
    NumberOn(*database);
    transaction.Commit();
    Guarded(*database, [](soci::session& session) { session << "analyze"; });
}

MigrationReport MigrateOnServer(const std::string& address, Migrations migrations,
                                const std::function<std::string(const std::string& name)>& prepare)
{
    const auto database = ConnectToTables(PostgresqlDialectForLongWork(), address, migrations);
    Guarded(*database, [](soci::session& session) { session << WaitForMigration; });
    WriteTransaction transaction(*database, WriteTransaction::Of::Schema);
    MigrationReport report{RequireTables(*database, migrations), NewestVersion(migrations), {}};
    if (report.before == report.after)
        return report;
    report.copy = prepare(NameOnServer(*database));
    Guarded(*database, [&](soci::session& session) {
        // Who reads a table for long is not waited for: those behind would have to wait as well.
        session << "set local lock_timeout = '5s'";
        RunMissing(session, database->GetDialect(), migrations);
        AuditMigration(*database, report.before, report.after, report.copy);
    });
    transaction.Commit();
    return report;
}

} // namespace kova::family
