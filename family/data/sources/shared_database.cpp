#include "family/data/sources/shared_database.hpp"

#include "family/data/sources/data_source.hpp"

#include <map>

namespace kova::family {

namespace {

std::map<std::string, std::shared_ptr<Database>>& Kept()
{
    static std::map<std::string, std::shared_ptr<Database>> kept;
    return kept;
}

} // namespace

std::shared_ptr<Database> SharedDatabase(const std::string& path)
{
    std::shared_ptr<Database>& database = Kept()[path];
    if (!database)
        database = OpenDatabase(path);
    return database;
}

void CloseSharedDatabases() { Kept().clear(); }

} // namespace kova::family
