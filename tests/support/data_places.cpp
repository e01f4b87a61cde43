#include "tests/support/data_places.hpp"

#include <cstdlib>

namespace kova::test {

bool TestsRunOnServer() { return std::getenv("KOVARIS_TEST_SERVER") != nullptr; }

std::string DataPlaces::Place(const std::string& name)
{
    if (!TestsRunOnServer())
        return folder_ + "/" + name + ".db";
    return onServer_.try_emplace(name, PostgresServer::Shared()).first->second.Address();
}

} // namespace kova::test
