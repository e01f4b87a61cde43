#include "tests/support/postgres_server.hpp"

#include <libpq-fe.h>

#include <memory>
#include <stdexcept>

namespace kova::test {

namespace {

using Connection = std::unique_ptr<PGconn, decltype(&PQfinish)>;
using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

} // namespace

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

} // namespace kova::test
