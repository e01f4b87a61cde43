#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace kova::test {

/// A database file as another program sees it: through the engine's own interface.
class SqliteFile {
public:
    explicit SqliteFile(const std::string& path)
    {
        if (sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(handle_));
    }
    ~SqliteFile() { sqlite3_close(handle_); }
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    /// Rows of a statement, columns joined by "|".
    std::vector<std::string> Run(const std::string& statement)
    {
        std::vector<std::string> rows;
        const auto take = [](void* to, int columns, char** values, char**) {
            std::string row;
            for (int column = 0; column < columns; ++column)
                row += (column == 0 ? "" : "|") + std::string(values[column] ? values[column] : "(null)");
            static_cast<std::vector<std::string>*>(to)->push_back(row);
            return 0;
        };
        if (sqlite3_exec(handle_, statement.c_str(), take, &rows, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(handle_));
        return rows;
    }

private:
    sqlite3* handle_ = nullptr;
};

} // namespace kova::test
