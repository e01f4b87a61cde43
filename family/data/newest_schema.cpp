#include "family/data/newest_schema.hpp"

#include "family/data/migrations/migrations.hpp"

namespace kova::family {

void RequireNewestSchema(Database& database)
{
    const int version = StoredVersion(database.Session());
    if (version != NewestVersion(CurrentMigrations()))
        throw DatabaseFailure("O banco de dados \"" + database.Path() + "\" é da versão "
                              + std::to_string(version)
                              + ". Atualize-o com \"agenda-data migrate\" e tente novamente.");
}

} // namespace kova::family
