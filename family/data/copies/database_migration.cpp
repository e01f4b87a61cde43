#include "family/data/copies/database_migration.hpp"

#include "family/data/copies/database_backup.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_migration.hpp"
#include "family/data/sources/server_source.hpp"
#include "system/path_text.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// What a file of that database can be called.
std::string FileNameOf(std::string database)
{
    std::replace_if(
        database.begin(), database.end(),
        [](char letter) { return std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos; },
        '_');
    return database;
}

bool IsTaken(const std::string& file)
{
    return std::filesystem::exists(std::filesystem::symlink_status(system::PathOf(file)));
}

std::string FreeName(const std::string& database, int version)
{
    int attempt = 1;
    std::string name = BackupName(FileNameOf(database), version);
    while (IsTaken(name))
        name = BackupName(FileNameOf(database), version, ++attempt);
    return name;
}

} // namespace

MigrationReport MigrateDatabase(const std::string& source, const std::optional<std::string>& copy,
                                Migrations migrations, const LongWork& work)
{
    if (IsServer(source))
        return MigrateOnServer(source, migrations, [&](const std::string& name) {
            const std::string file = copy.value_or(FreeName(name, NewestVersion(migrations)));
            BackUpDatabase(source, file, work);
            return file;
        });
    if (const auto refusal = CheckDataSource(source, migrations))
        throw DatabaseFailure(*refusal);
    return MigrateFile(source, migrations);
}

} // namespace kova::family
