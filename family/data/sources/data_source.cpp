#include "family/data/sources/data_source.hpp"

#include "family/data/engine/secrets_in_text.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/sources/file_source.hpp"
#include "family/data/sources/server_source.hpp"
#include "system/path_text.hpp"

namespace kova::family {

bool DataSourceExists(const std::string& path)
{
    if (IsServer(path))
        return ExistsOnServer(path);
    try {
        std::error_code unreadable;
        return std::filesystem::exists(std::filesystem::symlink_status(system::PathOf(path), unreadable));
    } catch (const std::filesystem::filesystem_error&) {
        // No file bears a name that cannot be written here.
        return false;
    }
}

std::optional<std::string> CheckDataSource(const std::string& path, Migrations migrations)
{
    const auto refusal =
        IsServer(path) ? CheckServerSource(path, migrations) : CheckFileSource(path, migrations);
    return refusal ? std::optional(WithoutSecrets(*refusal)) : std::nullopt;
}

std::shared_ptr<Database> OpenDatabase(const std::string& path, Migrations migrations, MigrationReport* done)
{
    return IsServer(path) ? OpenOnServer(path, migrations) : OpenFile(path, migrations, done);
}

std::shared_ptr<Database> OpenForLongWork(const std::string& path)
{
    return IsServer(path) ? OpenOnServerForLongWork(path) : OpenFile(path, CurrentMigrations());
}

std::unique_ptr<Database> OpenForReading(const std::string& path)
{
    return IsServer(path) ? OpenOnServerForReading(path) : OpenFileForReading(path);
}

std::unique_ptr<Database> OpenNewestForReading(const std::string& path)
{
    std::unique_ptr<Database> database = OpenForReading(path);
    if (const int version = VersionOf(*database); version != NewestVersion(CurrentMigrations()))
        throw DatabaseFailure("O banco de dados \"" + path + "\" é da versão " + std::to_string(version)
                              + ". Atualize-o com \"agenda-data migrate\" e tente novamente.");
    return database;
}

void CreateDatabase(const std::string& path, const std::function<void(Database&)>& fill)
{
    if (IsServer(path))
        CreateOnServer(path, fill);
    else
        CreateFile(path, fill);
}

} // namespace kova::family
