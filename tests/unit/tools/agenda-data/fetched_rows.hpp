#pragma once

namespace kova::data::test {

/// Counts, as long as it lives, the rows that the engines hand over to this process. One at a time.
class FetchedRows {
public:
    FetchedRows();
    ~FetchedRows();
    FetchedRows(const FetchedRows&) = delete;
    FetchedRows& operator=(const FetchedRows&) = delete;

    /// Of one run of a statement, at most. A server hands them over at once.
    long long AtOnce() const;
    long long InAll() const;
};

/// A result of a server with so many rows, and that it is gone: told by what stands in the client library's
/// place.
void NoteServerRows(const void* result, long long rows);
void ForgetServerRows(const void* result);

} // namespace kova::data::test
