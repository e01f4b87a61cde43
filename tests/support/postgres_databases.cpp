#include "tests/support/postgres_server.hpp"

#include <libpq-fe.h>

#include <memory>
#include <stdexcept>

namespace kova::test {

namespace {

using Connection = std::unique_ptr<PGconn, decltype(&PQfinish)>;
using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

} // namespace

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

std::vector<std::string> PostgresServer::Run(const std::string& database, const std::string& statement) const
{
    const Connection connection(PQconnectdb(AddressOf(database).c_str()), PQfinish);
    const Result result(PQexec(connection.get(), statement.c_str()), PQclear);
    const ExecStatusType status = PQresultStatus(result.get());
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        throw std::runtime_error(statement + ": " + PQerrorMessage(connection.get()));
    std::vector<std::string> rows;
    for (int row = 0; row < PQntuples(result.get()); ++row) {
        std::string& line = rows.emplace_back();
        for (int column = 0; column < PQnfields(result.get()); ++column) {
            const bool isNull = PQgetisnull(result.get(), row, column) != 0;
            line += (column == 0 ? "" : "|")
                + std::string(isNull ? "(null)" : PQgetvalue(result.get(), row, column));
        }
    }
    return rows;
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
