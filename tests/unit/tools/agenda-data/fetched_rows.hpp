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

} // namespace kova::data::test
