#pragma once

#include "family/data/engine/database.hpp"

namespace kova::family {

/// As long as it lives, a connection only reads and sees one moment, from its first selection on, whatever
/// others write. Where the connection is lost the moment is lost with it: nothing is read over a new one.
class Snapshot {
public:
    /// Fails with a DatabaseFailure.
    explicit Snapshot(Database& database) : database_(database)
    {
        try {
            database_.Session() << database_.GetDialect().beginOfSnapshot;
        } catch (const soci::soci_error& cause) {
            throw TranslatedFailure(database_.Path(), cause);
        }
        database_.SetInTransaction(true);
    }
    ~Snapshot()
    {
        database_.SetInTransaction(false);
        try {
            database_.Session() << "rollback";
        } catch (const soci::soci_error&) {
            // A lost connection has ended it already.
            return;
        }
    }
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

private:
    Database& database_;
};

} // namespace kova::family
