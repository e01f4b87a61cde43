// No server can be started from here: what asks for one fails.

#include "tests/support/postgres_server.hpp"

#include <stdexcept>

namespace kova::test {

namespace {

[[noreturn]] void Fail() { throw std::runtime_error("no server can be started on this system"); }

} // namespace

PostgresServer& PostgresServer::Shared()
{
    static PostgresServer server;
    return server;
}

PostgresServer::PostgresServer() { Fail(); }
PostgresServer::~PostgresServer() = default;

void PostgresServer::Start() { Fail(); }
void PostgresServer::Stop() { Fail(); }
void PostgresServer::Kill() { Fail(); }
void PostgresServer::AnswerOnPort(const std::string&, const std::string&) { Fail(); }
void PostgresServer::AnswerUnprotected() { Fail(); }
std::string PostgresServer::AddressOf(const std::string&) const { Fail(); }
std::string PostgresServer::MakeDatabase(const std::string&) { Fail(); }
void PostgresServer::DropDatabase(const std::string&) { Fail(); }
std::string PostgresServer::Model(const std::string&, const std::function<void(const std::string&)>&)
{
    Fail();
}
std::vector<std::string> PostgresServer::Run(const std::string&, const std::string&) const { Fail(); }

PostgresDatabase::~PostgresDatabase() = default;

} // namespace kova::test
