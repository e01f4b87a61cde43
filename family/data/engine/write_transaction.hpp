#pragma once

#include "family/data/engine/database.hpp"

namespace kova::family {

/// A transaction that writes, from its construction on. Other connections that want to write wait for its
/// end, as long as their busy wait lasts. Without Commit everything is undone. The Database must outlive it
/// and have no other transaction open.
class WriteTransaction {
public:
    /// Of rows, or of the schema too: such a one waits for all that write, and they for it.
    enum class Of { Rows, Schema };

    /// Fails with a DatabaseFailure where the wait for another connection is over, and where rows are to be
    /// written and the schema is not the one that the connection was opened for: another program may have
    /// changed it since.
    explicit WriteTransaction(Database& database, Of what = Of::Rows);
    /// One of rows. Where the connection may break during its commit it leaves the mark, which is of letters
    /// and digits.
    WriteTransaction(Database& database, const std::string& mark);
    ~WriteTransaction();
    WriteTransaction(const WriteTransaction&) = delete;
    WriteTransaction& operator=(const WriteTransaction&) = delete;

    /// Whether a transaction with the same mark has been kept before.
    bool IsKeptAlready() const { return isKeptAlready_; }

    /// After it the writes outlast the end of the process. Fails with a DatabaseFailure; nothing is written
    /// then, except that with Fault::ConnectionLost it is not known.
    void Commit();

private:
    Database& database_;
    bool open_ = true, isKeptAlready_ = false;
};

} // namespace kova::family
