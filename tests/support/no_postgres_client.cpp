// Without the client library of servers there is none to be asked.

#include "tests/support/postgres_server.hpp"

#include <stdexcept>

namespace kova::test {

std::vector<std::string> PostgresServer::Run(const std::string&, const std::string& statement) const
{
    throw std::runtime_error(statement + ": these tests were built without the client library of servers");
}

} // namespace kova::test
