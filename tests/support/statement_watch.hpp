#pragma once

#include <sqlite3.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace kova::test {

/// Tells, as it begins, of each run of one statement over the file connections that are opened from here on.
/// There may be one at a time.
class StatementWatch {
public:
    /// `tell` is told the how manieth run it is, in the thread that runs it.
    StatementWatch(std::string statement, std::function<void(int time)> tell)
        : statement_(std::move(statement)), tell_(std::move(tell))
    {
        if (watching_)
            throw std::logic_error("two watches at once");
        watching_ = this;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(Begin));
    }
    ~StatementWatch()
    {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(Begin));
        watching_ = nullptr;
    }
    StatementWatch(const StatementWatch&) = delete;
    StatementWatch& operator=(const StatementWatch&) = delete;

private:
    static int Begin(sqlite3* database, char**, const void*)
    {
        return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, Hear, nullptr);
    }

    static int Hear(unsigned, void*, void*, void* text)
    {
        if (watching_ && watching_->statement_ == static_cast<const char*>(text))
            watching_->tell_(++watching_->times_);
        return 0;
    }

    static inline StatementWatch* watching_ = nullptr;

    std::string statement_;
    std::function<void(int time)> tell_;
    int times_ = 0;
};

} // namespace kova::test
