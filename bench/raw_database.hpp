#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kova::bench {

/// A database through the engine's own interface and nothing else. Every failure is a
/// std::runtime_error with the engine's words.
class RawDatabase {
public:
    /// Opens the file with the settings that the product uses.
    explicit RawDatabase(const std::string& path);
    ~RawDatabase();
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    /// The statements run on the connection before anything else.
    static const std::vector<std::string>& Settings();

    sqlite3* Handle() const { return handle_; }

private:
    sqlite3* handle_ = nullptr;
};

/// A prepared statement.
class RawStatement {
public:
    RawStatement(const RawDatabase& database, const std::string& text);
    ~RawStatement();
    RawStatement(const RawStatement&) = delete;
    RawStatement& operator=(const RawStatement&) = delete;

    /// Parameters by name, without the colon.
    void Bind(const std::string& name, const std::string& value);
    void Bind(const std::string& name, std::int64_t value);
    /// False behind the last row.
    bool Step();
    /// Ready to run again, with the same parameters.
    void Reset() { sqlite3_reset(handle_); }

    int ColumnCount() const { return sqlite3_column_count(handle_); }
    bool IsText(int column) const { return sqlite3_column_type(handle_, column) == SQLITE_TEXT; }
    std::string_view TextAt(int column) const;
    std::int64_t NumberAt(int column) const { return sqlite3_column_int64(handle_, column); }

private:
    int ParameterNumber(const std::string& name) const;

    sqlite3* database_;
    sqlite3_stmt* handle_ = nullptr;
};

/// Sets the day, "yyyy-mm-dd", of the statement that selects a day, and no other condition.
void BindDay(RawStatement& statement, const std::string& day);

} // namespace kova::bench
