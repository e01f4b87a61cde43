#include "bench/raw_database.hpp"

#include <stdexcept>

namespace kova::bench {

namespace {

void Require(sqlite3* database, int result)
{
    if (result != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
}

} // namespace

const std::vector<std::string>& RawDatabase::Settings()
{
    static const std::vector<std::string> settings{
        "pragma busy_timeout = 5000",
        "pragma synchronous = full",
        "pragma foreign_keys = on",
        "pragma cache_size = -16000",
    };
    return settings;
}

RawDatabase::RawDatabase(const std::string& path)
{
    Require(handle_, sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr));
    Require(handle_, sqlite3_exec(handle_, "pragma journal_mode = wal", nullptr, nullptr, nullptr));
    for (const std::string& setting : Settings())
        Require(handle_, sqlite3_exec(handle_, setting.c_str(), nullptr, nullptr, nullptr));
}

RawDatabase::~RawDatabase() { sqlite3_close(handle_); }

RawStatement::RawStatement(const RawDatabase& database, const std::string& text)
    : database_(database.Handle())
{
    Require(database_, sqlite3_prepare_v2(database_, text.c_str(), -1, &handle_, nullptr));
}

RawStatement::~RawStatement() { sqlite3_finalize(handle_); }

int RawStatement::ParameterNumber(const std::string& name) const
{
    const int number = sqlite3_bind_parameter_index(handle_, (":" + name).c_str());
    if (number == 0)
        throw std::runtime_error("the statement has no parameter " + name);
    return number;
}

void RawStatement::Bind(const std::string& name, const std::string& value)
{
    Require(database_,
            sqlite3_bind_text(handle_, ParameterNumber(name), value.data(), static_cast<int>(value.size()),
                              SQLITE_TRANSIENT));
}

void RawStatement::Bind(const std::string& name, std::int64_t value)
{
    Require(database_, sqlite3_bind_int64(handle_, ParameterNumber(name), value));
}

bool RawStatement::Step()
{
    const int result = sqlite3_step(handle_);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(database_));
    return result == SQLITE_ROW;
}

std::string_view RawStatement::TextAt(int column) const
{
    const unsigned char* text = sqlite3_column_text(handle_, column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_, column));
    return {reinterpret_cast<const char*>(text), text ? size : 0};
}

void BindDay(RawStatement& statement, const std::string& day)
{
    statement.Bind("data", day);
    for (const char* condition : {"situacao", "tipo", "funcionario", "transporte"})
        statement.Bind(condition, std::int64_t{0});
}

} // namespace kova::bench
