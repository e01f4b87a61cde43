#include "tools/agenda-data/csv/current_schema.hpp"

#include "family/data/data_source.hpp"

namespace kova::data {

std::unique_ptr<family::Database> OpenCurrentForReading(const std::string& path)
{
    std::unique_ptr<family::Database> database = family::OpenForReading(path);
    const int newest = family::NewestVersion(family::CurrentMigrations());
    if (const int version = family::StoredVersion(database->Session()); version < newest)
        throw family::DatabaseFailure("O banco de dados \"" + path + "\" é da versão "
                                      + std::to_string(version) + " e precisa ser da versão "
                                      + std::to_string(newest)
                                      + ". Abra-o uma vez na agenda para atualizá-lo.");
    return database;
}

} // namespace kova::data
