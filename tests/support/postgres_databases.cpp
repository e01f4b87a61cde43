#include "tests/support/postgres_server.hpp"

#include <stdexcept>

namespace kova::test {

PostgresServer& PostgresServer::Shared()
{
    static PostgresServer server;
    return server;
}

std::string PostgresServer::MakeDatabase(const std::string& like)
{
    const std::string name = "loja_" + std::to_string(++databases_);
    // A server of somebody else's may keep what a run that was broken off has left.
    DropDatabase(name);
    // Its files are copied as they are: the other way, page by page through the log, takes three times as
    // long.
    Run("postgres", "create database " + name + " template " + like + " strategy file_copy");
    return name;
}

void PostgresServer::DropDatabase(const std::string& name)
{
    Run("postgres", "drop database if exists " + name + " with (force)");
}

std::string PostgresServer::Model(const std::string& name,
                                  const std::function<void(const std::string& address)>& fill)
{
    std::string& model = models_[name];
    if (model.empty()) {
        const std::string made = MakeDatabase();
        fill(AddressOf(made));
        model = made;
    }
    return model;
}

PostgresDatabase::~PostgresDatabase()
{
    try {
        server_.DropDatabase(name_);
    } catch (const std::runtime_error&) {
        // A server that a test has left dead takes its databases with it.
        return;
    }
}

} // namespace kova::test
