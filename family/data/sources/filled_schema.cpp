#include "family/data/sources/filled_schema.hpp"

namespace kova::family {

void FillSchema(Database& database, Migrations migrations, const std::function<void(Database&)>& fill)
{
    RunMissing(database.Session(), database.GetDialect(), migrations);
    fill(database);
}

} // namespace kova::family
