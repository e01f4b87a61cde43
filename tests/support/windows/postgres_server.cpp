// No server runs here: the tests ask one that runs elsewhere, for them alone and as long as they wish. It
// stands in KOVARIS_TEST_SERVER_AT as HOST:PORT, and lets the user "postgres" in without a password.

#include "tests/support/postgres_server.hpp"

#include <cstdlib>
#include <stdexcept>

namespace kova::test {

namespace {

std::string Place()
{
    const char* place = std::getenv("KOVARIS_TEST_SERVER_AT");
    if (place == nullptr)
        throw std::runtime_error("KOVARIS_TEST_SERVER_AT names no server");
    return place;
}

[[noreturn]] void Fail() { throw std::runtime_error("the server is not to be started or ended from here"); }

} // namespace

PostgresServer::PostgresServer() : folder_(Place()) { }
PostgresServer::~PostgresServer() = default;

std::string PostgresServer::AddressOf(const std::string& database) const
{
    return "postgresql://postgres@" + folder_ + "/" + database;
}

void PostgresServer::Start() { Fail(); }
void PostgresServer::Stop() { Fail(); }
void PostgresServer::Kill() { Fail(); }
void PostgresServer::AnswerOnPort(const std::string&, const std::string&) { Fail(); }
void PostgresServer::AnswerUnprotected() { Fail(); }

} // namespace kova::test
