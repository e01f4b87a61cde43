#include "family/data/engine/data_source.hpp"

#include "family/data/engine/file_source.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/server_source.hpp"
#include "system/path_text.hpp"

namespace kova::family {

bool DataSourceExists(const std::string& path)
{
    if (IsServer(path))
        return ExistsOnServer(path);
    std::error_code unreadable;
    return std::filesystem::exists(std::filesystem::symlink_status(system::PathOf(path), unreadable));
}

std::optional<std::string> CheckDataSource(const std::string& path, Migrations migrations)
{
    return IsServer(path) ? CheckServerSource(path, migrations) : CheckFileSource(path, migrations);
}

std::shared_ptr<Database> OpenDatabase(const std::string& path, Migrations migrations)
{
    return IsServer(path) ? OpenOnServer(path, migrations) : OpenFile(path, migrations);
}

std::shared_ptr<Database> OpenForLongWork(const std::string& path)
{
    return IsServer(path) ? OpenOnServerForLongWork(path) : OpenFile(path, CurrentMigrations());
}

std::unique_ptr<Database> OpenForReading(const std::string& path)
{
    return IsServer(path) ? OpenOnServerForReading(path) : OpenFileForReading(path);
}

void CreateDatabase(const std::string& path, const std::function<void(Database&)>& fill)
{
    if (IsServer(path))
        CreateOnServer(path, fill);
    else
        CreateFile(path, fill);
}

void NumberOn(Database& database)
{
    const std::string& statement = database.GetDialect().numberOn;
    if (statement.empty())
        return;
    try {
        database.Session() << statement;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

std::string BackupName(const std::string& path, int version)
{
    return path + ".antes-da-versao-" + std::to_string(version) + ".bak";
}

} // namespace kova::family
