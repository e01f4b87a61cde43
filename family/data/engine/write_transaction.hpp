#pragma once

#include "family/data/engine/database.hpp"

namespace kova::family {

/// A transaction that writes, from its construction on. Other connections that want to write wait for its
/// end, as long as their busy wait lasts. Without Commit everything is undone. The Database must outlive it
/// and have no other transaction open.
class WriteTransaction {
public:
    /// Fails with a DatabaseFailure where the wait for another connection is over.
    explicit WriteTransaction(Database& database);
    ~WriteTransaction();
    WriteTransaction(const WriteTransaction&) = delete;
    WriteTransaction& operator=(const WriteTransaction&) = delete;

    /// After it the writes outlast the end of the process. Fails with a DatabaseFailure; nothing is written
    /// then, except that with Fault::ConnectionLost it is not known.
    void Commit();

private:
    Database& database_;
    bool open_ = true;
};

} // namespace kova::family
