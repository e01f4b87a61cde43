#pragma once

#include "tests/support/postgres_server.hpp"

#include <map>
#include <string>

namespace kova::test {

/// Whether the databases of the tests lie on a server, which the environment variable KOVARIS_TEST_SERVER
/// tells; else they are SQLite files.
bool TestsRunOnServer();

/// The data sources of one test. Those on a server go with it; the files lie in a folder of somebody else's.
class DataPlaces {
public:
    explicit DataPlaces(std::string folder) : folder_(std::move(folder)) { }

    /// "FOLDER/NAME.db", or on a server the address of a database of that name, which is empty at first.
    std::string Place(const std::string& name);

private:
    std::string folder_;
    std::map<std::string, PostgresDatabase> onServer_;
};

} // namespace kova::test
