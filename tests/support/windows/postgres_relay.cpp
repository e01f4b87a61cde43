// Without a server there is nothing to relay to.

#include "tests/support/postgres_relay.hpp"

namespace kova::test {

PostgresRelay::PostgresRelay(const PostgresServer& server) : server_(server) { }

PostgresRelay::~PostgresRelay() = default;

void PostgresRelay::Refuse() { }

void PostgresRelay::Cut() { }

} // namespace kova::test
