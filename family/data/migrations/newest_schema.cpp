#include "family/data/migrations/newest_schema.hpp"

#include "family/data/engine/data_source.hpp"

namespace kova::family {

std::unique_ptr<Database> OpenNewestForReading(const std::string& path)
{
    std::unique_ptr<Database> database = OpenForReading(path);
    if (const int version = VersionOf(*database); version != NewestVersion(CurrentMigrations()))
        throw DatabaseFailure("O banco de dados \"" + path + "\" é da versão " + std::to_string(version)
                              + ". Atualize-o com \"agenda-data migrate\" e tente novamente.");
    return database;
}

} // namespace kova::family
