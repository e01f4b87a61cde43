#include "family/data/sources/shared_database.hpp"

#include "family/data/sources/data_source.hpp"

#include <map>
#include <set>
#include <utility>

namespace kova::family {

namespace {

struct KeptDatabase {
    std::shared_ptr<Database> database;
    MigrationReport untold;
};

std::map<std::string, KeptDatabase>& Kept()
{
    static std::map<std::string, KeptDatabase> kept;
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
    KeptDatabase& kept = Kept()[path];
    if (!kept.database)
        kept.database = OpenDatabase(path, CurrentMigrations(), &kept.untold);
    return kept.database;
}

MigrationReport TakeMigrationReport(const std::string& path)
{
    return std::exchange(Kept()[path].untold, {});
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
