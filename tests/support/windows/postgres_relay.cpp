// What breaks connections is not to be had here.

#include "tests/support/postgres_relay.hpp"

#include <stdexcept>

namespace kova::test {

PostgresRelay::PostgresRelay(const PostgresServer& server) : server_(server)
{
    throw std::runtime_error("no connection can be broken from here");
}

PostgresRelay::~PostgresRelay() = default;

void PostgresRelay::Refuse() { }

void PostgresRelay::Cut() { }

} // namespace kova::test
