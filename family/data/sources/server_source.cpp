#include "family/data/sources/server_source.hpp"

#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "family/data/rows/numbering.hpp"

namespace kova::family {

namespace {

constexpr int OldestServer = 150000;

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

void RequireVersion(Database& database, Migrations migrations)
{
    const int version = ReadVersion(database);
    if (version == 0)
        throw DatabaseFailure("O banco de dados \"" + database.Path()
                              + "\" não tem as tabelas da agenda. Verifique o endereço, ou crie-as com "
                                "\"agenda-data create\".");
    if (const auto refusal = RefusalOfNewer(database.Path(), version, migrations))
        throw DatabaseFailure(*refusal);
}

std::unique_ptr<Database> ConnectAndCheck(const Dialect& dialect, const std::string& address,
                                          Migrations migrations)
{
    std::unique_ptr<Database> database = Connect(dialect, address);
    RequireServer(*database);
    RequireVersion(*database, migrations);
    return database;
}

void BringUpToDate(const std::string& address, Migrations migrations)
{
    const auto database = Connect(PostgresqlDialectForLongWork(), address);
    Guarded(*database, [&](soci::session& session) { Migrate(session, database->GetDialect(), migrations); });
}

void ForgetOldMarks(Database& database)
{
    Guarded(database, [&](soci::session& session) { session << database.GetDialect().forgetMarks; });
}

std::shared_ptr<Database> OpenUpToDate(const Dialect& dialect, const std::string& address,
                                       Migrations migrations)
{
    std::shared_ptr<Database> database = ConnectAndCheck(dialect, address, migrations);
    if (ReadVersion(*database) < NewestVersion(migrations))
        BringUpToDate(address, migrations);
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
    return ConnectAndCheck(PostgresqlDialectForReading(), address, CurrentMigrations());
}

void CreateOnServer(const std::string& address, const std::function<void(Database&)>& fill)
{
    const auto database = Connect(PostgresqlDialectForLongWork(), address);
    RequireServer(*database);
    WriteTransaction transaction(*database);
    Guarded(*database, [&](soci::session& session) {
        session << database->GetDialect().lockSchema;
        if (VersionOf(*database) > 0)
            throw DatabaseFailure("O banco de dados \"" + address
                                  + "\" já tem as tabelas da agenda. Escolha outro, que esteja vazio.");
        RunMissing(session, database->GetDialect(), CurrentMigrations());
    });
    fill(*database);
    NumberOn(*database);
    transaction.Commit();
    Guarded(*database, [](soci::session& session) { session << "analyze"; });
}

} // namespace kova::family
