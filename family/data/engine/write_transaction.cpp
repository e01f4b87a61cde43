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

/// What the beginning of a transaction that writes rows tells.
struct Beginning {
    /// Of the schema.
    int version = 0;
    /// How often it was changed who may do what.
    long long rights = 0;
    /// By the server's clock.
    std::string moment;
    /// How many marks it has written.
    int marks = 1;
};

Beginning BeginRows(Database& database)
{
    const std::vector<std::string>& statements = database.GetDialect().beginOfWrite;
    for (std::size_t at = 0; at + 1 < statements.size(); ++at)
        database.Session() << statements[at];
    Beginning told;
    soci::indicator found = soci::i_null;
    database.Session() << statements.back(), soci::into(told.version, found), soci::into(told.rights),
        soci::into(told.moment);
    return told;
}

class MarkedBeginning : public KeptStatement {
public:
    explicit MarkedBeginning(Database& database)
        : database_(database), name_("gravacao_" + std::to_string(++made_))
    {
        database.Session() << database.GetDialect().markedWrite(name_);
    }

    Beginning Run(const std::string& mark)
    {
        Beginning told;
        soci::indicator found = soci::i_null;
        database_.Session() << database_.GetDialect().beginOfMarkedWrite(name_, mark),
            soci::into(told.version, found), soci::into(told.rights), soci::into(told.moment),
            soci::into(told.marks);
        return told;
    }

private:
    /// One that has failed may stay prepared on its connection: the next one needs another name.
    static inline thread_local int made_ = 0;

    Database& database_;
    const std::string name_;
};

Beginning BeginMarkedRows(Database& database, const std::string& mark)
{
    return database.WithOnce<MarkedBeginning>(
        [&](MarkedBeginning& beginning) { return beginning.Run(mark); });
}

void TakeIn(Database& database, const Beginning& told)
{
    const int known = database.SchemaVersion();
    const auto refusal = known == 0 ? std::nullopt : RefusalOfOther(database.Path(), told.version, known);
    if (refusal)
        throw DatabaseFailure(*refusal);
    database.TakeChangesOfRights(told.rights);
    database.TakeServersMoment(told.moment);
}

/// Runs what begins a transaction; what has begun is undone where it fails.
template <class Begin> auto Guarded(Database& database, Begin begin)
{
    try {
        return begin();
    } catch (const soci::soci_error& cause) {
        RollBack(database);
        throw TranslatedFailure(database.Path(), cause);
    } catch (const DatabaseFailure&) {
        RollBack(database);
        throw;
    }
}

/// Where the connection turns out to be lost, nothing has been sent over it yet.
template <class Begin> auto BeginOnLiveConnection(Database& database, Begin begin)
{
    if (database.IsConnected()) {
        try {
            return Guarded(database, begin);
        } catch (const DatabaseFailure& failure) {
            if (failure.GetFault() != Fault::ConnectionLost)
                throw;
        }
    }
    database.Reconnect();
    return Guarded(database, begin);
}

} // namespace

WriteTransaction::WriteTransaction(Database& database, Of what) : database_(database)
{
    BeginOnLiveConnection(database_, [&] {
        if (what == Of::Schema)
            database_.Session() << database_.GetDialect().beginOfSchemaChange;
        else
            TakeIn(database_, BeginRows(database_));
    });
    database_.SetInTransaction(true);
}

WriteTransaction::WriteTransaction(Database& database, const std::string& mark) : database_(database)
{
    BeginOnLiveConnection(database_, [&] {
        const Beginning told =
            database_.GetDialect().IsServer() ? BeginMarkedRows(database_, mark) : BeginRows(database_);
        TakeIn(database_, told);
        isKeptAlready_ = told.marks == 0;
    });
    database_.SetInTransaction(true);
}

WriteTransaction::~WriteTransaction()
{
    database_.SetInTransaction(false);
    database_.TakeChangesOfRights(std::nullopt);
    database_.TakeServersMoment({});
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
