#include "family/data/engine/write_transaction.hpp"

#include "family/data/engine/migration.hpp"

namespace kova::family {

namespace {

void RollBack(Database& database)
{
    try {
        database.Session().rollback();
    } catch (const soci::soci_error&) {
        // On some failures, a full disk among them, the engine has already undone everything itself.
        return;
    }
}

/// Answers the version of the schema.
int BeginOfRows(Database& database)
{
    const std::vector<std::string>& statements = database.GetDialect().beginOfWrite;
    for (std::size_t at = 0; at + 1 < statements.size(); ++at)
        database.Session() << statements[at];
    int version = 0;
    soci::indicator found = soci::i_null;
    database.Session() << statements.back(), soci::into(version, found);
    return found == soci::i_ok ? version : 0;
}

void RequireSchema(Database& database, int version)
{
    const int known = database.SchemaVersion();
    if (known == 0)
        return;
    if (const auto refusal = RefusalOfOther(database.Path(), version, known))
        throw DatabaseFailure(*refusal);
}

void Begin(Database& database, WriteTransaction::Of what)
{
    try {
        if (what == WriteTransaction::Of::Rows)
            RequireSchema(database, BeginOfRows(database));
        else
            database.Session() << database.GetDialect().beginOfSchemaChange;
    } catch (const soci::soci_error& cause) {
        RollBack(database);
        throw TranslatedFailure(database.Path(), cause);
    } catch (const DatabaseFailure&) {
        RollBack(database);
        throw;
    }
}

/// Where the connection turns out to be lost, nothing has been sent over it yet.
void BeginOnLiveConnection(Database& database, WriteTransaction::Of what)
{
    if (database.IsConnected()) {
        try {
            return Begin(database, what);
        } catch (const DatabaseFailure& failure) {
            if (failure.GetFault() != Fault::ConnectionLost)
                throw;
        }
    }
    database.Reconnect();
    Begin(database, what);
}

} // namespace

WriteTransaction::WriteTransaction(Database& database, Of what) : database_(database)
{
    BeginOnLiveConnection(database_, what);
    database_.SetInTransaction(true);
}

WriteTransaction::~WriteTransaction()
{
    database_.SetInTransaction(false);
    if (open_)
        RollBack(database_);
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
