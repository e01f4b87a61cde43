#pragma once

#include <libpq-fe.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kova::bench {

/// What a statement has answered, all rows of it.
class ServerAnswer {
public:
    explicit ServerAnswer(PGresult* answer) : answer_(answer, PQclear) { }

    int RowCount() const { return PQntuples(answer_.get()); }
    int ColumnCount() const { return PQnfields(answer_.get()); }
    std::string NameOf(int column) const { return PQfname(answer_.get(), column); }
    bool IsNumber(int column) const;
    bool IsNull(int row, int column) const { return PQgetisnull(answer_.get(), row, column) != 0; }
    std::string_view TextAt(int row, int column) const;
    std::int64_t NumberAt(int row, int column) const;

private:
    std::unique_ptr<PGresult, decltype(&PQclear)> answer_;
};

/// A connection to a server through the client library and nothing else. Every failure is a
/// std::runtime_error with the server's words.
class RawServer {
public:
    /// Connects with the settings that the product uses.
    explicit RawServer(const std::string& address);

    /// A statement without parameters, or several of them.
    ServerAnswer Run(const std::string& statement) const;
    /// Keeps a statement on the server; its parameters are $1, $2 ...
    void Prepare(const std::string& name, const std::string& statement) const;
    /// Runs a kept statement; a value that is not there is Null.
    ServerAnswer RunPrepared(const std::string& name,
                             const std::vector<std::optional<std::string>>& values) const;

    /// Of the connection.
    int Socket() const { return PQsocket(connection_.get()); }
    /// Takes the notices that have come, and answers whether there were any.
    bool TakeNotices() const;

private:
    ServerAnswer Checked(PGresult* result) const;

    std::unique_ptr<PGconn, decltype(&PQfinish)> connection_;
};

/// A statement whose parameters are written ":name", as the server takes it: every place has a number.
struct NumberedStatement {
    explicit NumberedStatement(std::string_view text);

    std::string text;
    /// Of the parameters, by their numbers, from $1 on.
    std::vector<std::string> names;
};

} // namespace kova::bench
