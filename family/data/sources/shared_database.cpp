#include "family/data/sources/shared_database.hpp"

#include "family/data/sources/data_source.hpp"

#include <map>
#include <set>

namespace kova::family {

namespace {

std::map<std::string, std::shared_ptr<Database>>& Kept()
{
    static std::map<std::string, std::shared_ptr<Database>> kept;
    return kept;
}

/// Data sources whose prices are hidden.
std::set<std::string>& WithoutPrices()
{
    static std::set<std::string> paths;
    return paths;
}

} // namespace

std::shared_ptr<Database> SharedDatabase(const std::string& path)
{
    std::shared_ptr<Database>& database = Kept()[path];
    if (!database)
        database = OpenDatabase(path);
    return database;
}

void HidePrices(const std::string& path, bool areHidden)
{
    if (areHidden)
        WithoutPrices().insert(path);
    else
        WithoutPrices().erase(path);
}

bool ArePricesHidden(const std::string& path) { return WithoutPrices().contains(path); }

void CloseSharedDatabases() { Kept().clear(); }

} // namespace kova::family
