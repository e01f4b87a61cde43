#include "family/data/sources/file_source.hpp"

#include "family/data/engine/file_checks.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "system/flush.hpp"
#include "system/path_text.hpp"

namespace kova::family {

namespace {

/// The back end reads its parameters separated by blanks: the path goes in quotes, last.
std::string Connection(const std::string& path, const std::string& options = {})
{
    return options + "dbname=\"" + path + "\"";
}

const Dialect& ReadingDialect()
{
    static const Dialect dialect = [] {
        Dialect reading = SqliteDialect();
        reading.settings = {"pragma busy_timeout = 5000", "pragma query_only = on"};
        return reading;
    }();
    return dialect;
}

/// Leaves nothing behind. A connection without leave to write could not take away the log files that it
/// makes, so it is only used where they are there already: there one with leave to write would, as the
/// last to close, carry a dead program's log into the database.
std::unique_ptr<Database> ConnectForReading(const std::string& path)
{
    const bool hasLog = std::filesystem::exists(system::PathOf(path + "-wal"));
    return std::make_unique<Database>(ReadingDialect(), Connection(path, hasLog ? "readonly=true " : ""),
                                      path);
}

/// Version of the schema; 0 where the tables are another program's.
int ReadVersion(const std::string& path)
{
    const std::unique_ptr<Database> database = ConnectForReading(path);
    try {
        return VersionOf(*database);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

std::optional<std::string> CheckVersion(const std::string& path, Migrations migrations)
{
    const int version = ReadVersion(path);
    if (version == 0)
        return "O arquivo \"" + path + "\" não é um banco de dados da agenda. Escolha outro arquivo.";
    return RefusalOfNewer(path, version, migrations);
}

/// A copy of one moment, complete also while somebody else writes. It gets its name only when it is
/// whole, and takes the place of one left by an attempt that did not come to its end.
void Backup(Database& database, int version)
{
    const std::string name = BackupName(database.Path(), version);
    const std::string unfinished = UnfinishedName(name);
    std::filesystem::remove(system::PathOf(unfinished));
    database.Session() << "vacuum into :copia", soci::use(unfinished);
    system::FlushFile(unfinished);
    std::filesystem::rename(system::PathOf(unfinished), system::PathOf(name));
}

void BringUpToDate(Database& database, Migrations migrations)
{
    try {
        if (StoredVersion(database.Session()) == NewestVersion(migrations))
            return;
        Backup(database, NewestVersion(migrations));
        Migrate(database.Session(), database.GetDialect(), migrations);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

/// A database under construction needs no log and no waiting for the disk: nobody sees it before it is
/// complete.
const Dialect& BuildingDialect()
{
    static const Dialect dialect = [] {
        Dialect building = SqliteDialect();
        building.settings = {"pragma journal_mode = off", "pragma synchronous = off",
                             "pragma foreign_keys = off", "pragma cache_size = -64000"};
        return building;
    }();
    return dialect;
}

} // namespace

std::optional<std::string> CheckFileSource(const std::string& path, Migrations migrations)
{
    try {
        if (auto refusal = CheckExistingFile(path))
            return refusal;
        return CheckVersion(path, migrations);
    } catch (const Failure& failure) {
        return failure.Description();
    }
}

std::unique_ptr<Database> OpenFileForReading(const std::string& path)
{
    if (const auto refusal = CheckFileSource(path, CurrentMigrations()))
        throw DatabaseFailure(*refusal);
    return ConnectForReading(path);
}

std::string BackupName(const std::string& path, int version)
{
    return path + ".antes-da-versao-" + std::to_string(version) + ".bak";
}

std::shared_ptr<Database> OpenFile(const std::string& path, Migrations migrations)
{
    if (const auto refusal = CheckFileSource(path, migrations))
        throw DatabaseFailure(*refusal);
    auto database = std::make_shared<Database>(SqliteDialect(), Connection(path), path);
    BringUpToDate(*database, migrations);
    return database;
}

void BuildFile(const std::string& path, const std::function<void(Database&)>& fill)
{
    const Dialect& dialect = BuildingDialect();
    Database database(dialect, Connection(path), path);
    try {
        Migrate(database.Session(), dialect, CurrentMigrations());
        WriteTransaction transaction(database);
        fill(database);
        transaction.Commit();
        database.Session() << "analyze";
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

void CreateFile(const std::string& path, const std::function<void(Database&)>& fill)
{
    UnfinishedFile file(path);
    BuildFile(file.Name(), fill);
    file.Finish();
}

} // namespace kova::family
