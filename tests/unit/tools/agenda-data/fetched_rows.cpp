#include "tests/unit/tools/agenda-data/fetched_rows.hpp"

#include <sqlite3.h>

#include <algorithm>
#include <map>

namespace kova::data::test {

namespace {

struct Counts {
    bool counting = false;
    long long atOnce = 0, inAll = 0;
    /// Of the runs of SQLite's statements that are under way.
    std::map<void*, long long> running;
    /// The last result of a server that was looked at.
    const void* result = nullptr;
};

Counts& TheCounts()
{
    static Counts counts;
    return counts;
}

int FollowStatement(unsigned event, void*, void* statement, void*)
{
    // The engine's own reading of its schema, as a connection is made, has no text and no beginning.
    if (!sqlite3_sql(static_cast<sqlite3_stmt*>(statement)))
        return SQLITE_OK;
    Counts& counts = TheCounts();
    long long& rows = counts.running[statement];
    if (event == SQLITE_TRACE_STMT) {
        rows = 0;
    } else {
        counts.atOnce = std::max(counts.atOnce, ++rows);
        ++counts.inAll;
    }
    return SQLITE_OK;
}

int FollowConnection(sqlite3* connection, char**, const void*)
{
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT | SQLITE_TRACE_ROW, FollowStatement, nullptr);
}

void (*AtEachConnection())() { return reinterpret_cast<void (*)()>(FollowConnection); }

} // namespace

FetchedRows::FetchedRows()
{
    TheCounts() = Counts();
    TheCounts().counting = true;
    sqlite3_auto_extension(AtEachConnection());
}

FetchedRows::~FetchedRows()
{
    sqlite3_cancel_auto_extension(AtEachConnection());
    TheCounts() = Counts();
}

long long FetchedRows::AtOnce() const { return TheCounts().atOnce; }
long long FetchedRows::InAll() const { return TheCounts().inAll; }

void NoteServerRows(const void* result, long long rows)
{
    Counts& counts = TheCounts();
    if (!counts.counting)
        return;
    counts.atOnce = std::max(counts.atOnce, rows);
    // It is asked for the same result more than once.
    if (counts.result != result)
        counts.inAll += rows;
    counts.result = result;
}

void ForgetServerRows(const void* result)
{
    // The next result may lie where this one did.
    if (TheCounts().result == result)
        TheCounts().result = nullptr;
}

} // namespace kova::data::test
