#pragma once

#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/dialect.hpp"
#include "family/data/engine/row_versions.hpp"

#include <soci/soci.h>

#include <memory>
#include <optional>
#include <string>
#include <typeindex>
#include <unordered_map>

namespace kova::family {

class Database;

/// A prepared statement with the variables it is bound to; made once for a connection and kept as long
/// as the connection. Its constructor takes the Database.
class KeptStatement {
public:
    virtual ~KeptStatement() = default;

protected:
    KeptStatement() = default;
    KeptStatement(const KeptStatement&) = delete;
    KeptStatement& operator=(const KeptStatement&) = delete;
};

/// An open connection with the statements prepared on it. Use it from one thread.
class Database {
public:
    /// Connects and applies the engine's settings, without looking at what is stored. `connection` is
    /// the text the back end takes, `path` what messages call the data source.
    Database(const Dialect& dialect, std::string connection, std::string path);

    soci::session& Session() { return session_; }
    const Dialect& GetDialect() const { return dialect_; }
    const std::string& Path() const { return path_; }
    /// The version of the schema that writes over this connection expect; 0 where they take any.
    int SchemaVersion() const { return schemaVersion_; }
    void ExpectSchema(int version) { schemaVersion_ = version; }
    /// What the session has read over this connection.
    RowVersions& Versions() { return versions_; }

    /// Runs `use` with the kept statement of that class, preparing it at the first use. What the engine
    /// reports comes out as a DatabaseFailure; the statement that failed is then prepared anew at its next
    /// use. Where the connection is lost, and no transaction with it, `use` runs once more on a new one.
    template <class Statement, class Use> auto With(Use use)
    {
        try {
            return RunWith<Statement>(use);
        } catch (const DatabaseFailure& failure) {
            if (!MayRunAgainAfter(failure))
                throw;
            Reconnect();
        }
        return RunWith<Statement>(use);
    }

    /// The same where `use` never runs twice: the caller connects anew itself.
    template <class Statement, class Use> auto WithOnce(Use use) { return RunWith<Statement>(use); }

    /// False after an attempt to connect anew has failed.
    bool IsConnected() const { return connected_; }

    /// Connects anew and forgets the statements prepared before. Waits a moment for a server that is just
    /// starting. Fails with a DatabaseFailure where there is no connection after that; the next use tries
    /// again.
    void Reconnect();

    /// How often it had been changed who may do what when the writing transaction that is open began; nothing
    /// where none is.
    std::optional<long long> ChangesOfRights() const { return changesOfRights_; }
    void TakeChangesOfRights(std::optional<long long> changes) { changesOfRights_ = changes; }

    /// What the server's clock showed when the transaction that is open and writes rows began, as
    /// Dialect::beginOfWrite tells it; empty where none is, and where the data lie in a file.
    const std::string& ServersMoment() const { return serversMoment_; }
    void TakeServersMoment(std::string moment) { serversMoment_ = std::move(moment); }

    /// While a transaction is open nothing runs again: what came before is lost with the connection.
    void SetInTransaction(bool inTransaction) { inTransaction_ = inTransaction; }

private:
    template <class Statement> Statement& Kept()
    {
        std::unique_ptr<KeptStatement>& kept = kept_[typeid(Statement)];
        if (!kept)
            kept = std::make_unique<Statement>(*this);
        return static_cast<Statement&>(*kept);
    }

    template <class Statement, class Use> auto RunWith(Use& use)
    {
        RequireConnection();
        try {
            return use(Kept<Statement>());
        } catch (const soci::soci_error& cause) {
            kept_.erase(typeid(Statement));
            throw TranslatedFailure(path_, cause);
        }
    }

    void Connect();
    /// Fails as a lost connection does where the last attempt to connect has failed.
    void RequireConnection() const;
    bool MayRunAgainAfter(const DatabaseFailure& failure) const;

    const Dialect& dialect_;
    std::string connection_, path_;
    RowVersions versions_;
    int schemaVersion_ = 0;
    std::optional<long long> changesOfRights_;
    std::string serversMoment_;
    bool connected_ = false, inTransaction_ = false;
    soci::session session_;
    std::unordered_map<std::type_index, std::unique_ptr<KeptStatement>> kept_;
};

} // namespace kova::family
