#include "family/data/engine/write_transaction.hpp"

namespace kova::family {

namespace {

void Begin(Database& database)
{
    try {
        database.Session() << database.GetDialect().beginOfWrite;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

/// Where the connection turns out to be lost, nothing has been sent over it yet.
void BeginOnLiveConnection(Database& database)
{
    if (database.IsConnected()) {
        try {
            return Begin(database);
        } catch (const DatabaseFailure& failure) {
            if (failure.GetFault() != Fault::ConnectionLost)
                throw;
        }
    }
    database.Reconnect();
    Begin(database);
}

} // namespace

WriteTransaction::WriteTransaction(Database& database) : database_(database)
{
    BeginOnLiveConnection(database_);
    database_.SetInTransaction(true);
}

WriteTransaction::~WriteTransaction()
{
    database_.SetInTransaction(false);
    if (!open_)
        return;
    try {
        database_.Session().rollback();
    } catch (const soci::soci_error&) {
        // On some failures, a full disk among them, the engine has already undone everything itself.
        return;
    }
}

void WriteTransaction::Commit()
{
    try {
        database_.Session().commit();
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database_.Path(), cause);
    }
    open_ = false;
}

} // namespace kova::family
