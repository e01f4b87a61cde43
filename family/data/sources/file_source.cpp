#include "family/data/sources/file_source.hpp"

#include "family/data/engine/file_checks.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/file_connection.hpp"
#include "family/data/sources/file_migration.hpp"
#include "family/data/sources/filled_schema.hpp"
#include "system/access.hpp"

namespace kova::family {

namespace {

/// Version of the schema; 0 where the tables are another program's.
int ReadVersion(Database& database)
{
    try {
        return VersionOf(database);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

std::optional<std::string> RefusalOfVersion(Database& database, Migrations migrations)
{
    const int version = ReadVersion(database);
    if (version == 0)
        return "O arquivo \"" + database.Path()
            + "\" não é um banco de dados da agenda. Escolha outro arquivo.";
    return RefusalOfNewer(database.Path(), version, migrations);
}

using FileCheck = std::optional<std::string> (*)(const std::string& path);

/// What a look at a file has shown: why it cannot be opened, or a connection that has read it.
struct Looked {
    std::optional<std::string> refusal;
    std::unique_ptr<Database> reading;
};

Looked LookAt(const std::string& path, FileCheck checkFile, Migrations migrations)
{
    try {
        if (auto refusal = checkFile(path))
            return {std::move(refusal), nullptr};
        auto reading = ConnectForReading(path);
        return {RefusalOfVersion(*reading, migrations), std::move(reading)};
    } catch (const Failure& failure) {
        return {failure.Description(), nullptr};
    }
}

bool IsOfVersion(Database& database, int version)
{
    try {
        return StoredVersion(database.Session()) == version;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

/// Earlier versions made files that everybody could read.
void KeepFromOthers(const std::string& path)
{
    for (const char* companion : {"", "-wal", "-shm"})
        system::KeepFromOthers(path + companion);
}

bool HasWritten(Database& database)
{
    int changes = 0;
    database.Session() << "select total_changes()", soci::into(changes);
    return changes > 0;
}

/// Has the engine look again at the tables that have grown a good deal since it looked at them last, so that
/// its plans suit them. Nobody waits for that, and where somebody else is writing it is left to the next one
/// who closes. Who has only read leaves the file as it is.
void LookAtGrownTables(Database& database)
{
    constexpr const char* Settings[] = {"pragma busy_timeout = 0", "pragma analysis_limit = 400",
                                        "pragma optimize"};
    try {
        if (!HasWritten(database))
            return;
        for (const char* setting : Settings)
            database.Session() << setting;
    } catch (const soci::soci_error&) {
        return;
    }
}

void CloseFile(Database* database)
{
    const std::unique_ptr<Database> closing(database);
    LookAtGrownTables(*closing);
}

} // namespace

std::optional<std::string> CheckFileSource(const std::string& path, Migrations migrations)
{
    return LookAt(path, CheckExistingFile, migrations).refusal;
}

std::unique_ptr<Database> OpenFileForReading(const std::string& path)
{
    Looked looked = LookAt(path, CheckReadableFile, CurrentMigrations());
    if (looked.refusal)
        throw DatabaseFailure(*looked.refusal);
    return std::move(looked.reading);
}

std::shared_ptr<Database> OpenFile(const std::string& path, Migrations migrations, MigrationReport* done)
{
    Looked looked = LookAt(path, CheckExistingFile, migrations);
    if (looked.refusal)
        throw DatabaseFailure(*looked.refusal);
    KeepFromOthers(path);
    const int newest = NewestVersion(migrations);
    std::unique_ptr<Database> database = ConnectForWork(path);
    // Not sooner: the last one to leave a file takes its log along, which the next one would make again.
    looked.reading.reset();
    if (!IsOfVersion(*database, newest)) {
        database.reset();
        const MigrationReport report = MigrateFile(path, migrations);
        if (done != nullptr)
            *done = report;
        database = ConnectForWork(path);
    }
    database->ExpectSchema(newest);
    return {database.release(), CloseFile};
}

void BuildFile(const std::string& path, const std::function<void(Database&)>& fill, Migrations migrations)
{
    const std::unique_ptr<Database> database = ConnectForBuilding(path);
    try {
        WriteTransaction transaction(*database, WriteTransaction::Of::Schema);
        FillSchema(*database, migrations, fill);
        transaction.Commit();
        database->Session() << "analyze";
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

void CreateFile(const std::string& path, const std::function<void(Database&)>& fill)
{
    if (const auto refusal = CheckLocalDisk(path))
        throw DatabaseFailure(*refusal);
    UnfinishedFile file(path);
    BuildFile(file.Name(), fill);
    file.Finish();
}

} // namespace kova::family
