#include "bench/raw_server.hpp"

#include "family/data/engine/dialect.hpp"

#include <charconv>
#include <stdexcept>

namespace kova::bench {

bool ServerAnswer::IsNumber(int column) const
{
    constexpr Oid BigInteger = 20, Integer = 23;
    const Oid type = PQftype(answer_.get(), column);
    return type == BigInteger || type == Integer;
}

std::string_view ServerAnswer::TextAt(int row, int column) const
{
    return {PQgetvalue(answer_.get(), row, column),
            static_cast<std::size_t>(PQgetlength(answer_.get(), row, column))};
}

std::int64_t ServerAnswer::NumberAt(int row, int column) const
{
    const std::string_view text = TextAt(row, column);
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

RawServer::RawServer(const std::string& address) : connection_(PQconnectdb(address.c_str()), PQfinish)
{
    if (PQstatus(connection_.get()) != CONNECTION_OK)
        throw std::runtime_error(PQerrorMessage(connection_.get()));
    for (const std::string& setting : family::PostgresqlDialect().settings)
        Run(setting);
}

ServerAnswer RawServer::Run(const std::string& statement) const
{
    return Checked(PQexec(connection_.get(), statement.c_str()));
}

void RawServer::Prepare(const std::string& name, const std::string& statement) const
{
    Checked(PQprepare(connection_.get(), name.c_str(), statement.c_str(), 0, nullptr));
}

ServerAnswer RawServer::RunPrepared(const std::string& name,
                                    const std::vector<std::optional<std::string>>& values) const
{
    std::vector<const char*> texts;
    for (const std::optional<std::string>& value : values)
        texts.push_back(value ? value->c_str() : nullptr);
    return Checked(PQexecPrepared(connection_.get(), name.c_str(), static_cast<int>(texts.size()),
                                  texts.data(), nullptr, nullptr, 0));
}

bool RawServer::TakeNotices() const
{
    if (PQconsumeInput(connection_.get()) == 0)
        throw std::runtime_error(PQerrorMessage(connection_.get()));
    bool isAny = false;
    for (PGnotify* notice = PQnotifies(connection_.get()); notice != nullptr;
         notice = PQnotifies(connection_.get())) {
        PQfreemem(notice);
        isAny = true;
    }
    return isAny;
}

ServerAnswer RawServer::Checked(PGresult* result) const
{
    ServerAnswer answer(result);
    const ExecStatusType status = PQresultStatus(result);
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        throw std::runtime_error(PQerrorMessage(connection_.get()));
    return answer;
}

NumberedStatement::NumberedStatement(std::string_view statement)
{
    const auto isOfName = [](char letter) { return (letter >= 'a' && letter <= 'z') || letter == '_'; };
    for (std::size_t at = 0; at < statement.size();) {
        if (statement[at] != ':') {
            text += statement[at++];
            continue;
        }
        std::string& name = names.emplace_back();
        while (++at < statement.size() && isOfName(statement[at]))
            name += statement[at];
        text += "$" + std::to_string(names.size());
    }
}

} // namespace kova::bench
