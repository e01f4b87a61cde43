#pragma once

#include "family/data/database_failure.hpp"
#include "family/data/dialect.hpp"
#include "family/data/row_versions.hpp"

#include <soci/soci.h>

#include <memory>
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
    Database(const Dialect& dialect, const std::string& connection, std::string path);

    soci::session& Session() { return session_; }
    const Dialect& GetDialect() const { return dialect_; }
    const std::string& Path() const { return path_; }
    /// What the session has read over this connection.
    RowVersions& Versions() { return versions_; }

    /// Runs `use` with the kept statement of that class, preparing it at the first use. What the engine
    /// reports comes out as a Failure; the statement that failed is then prepared anew at its next use.
    template <class Statement, class Use> auto With(Use use)
    {
        try {
            return use(Kept<Statement>());
        } catch (const soci::soci_error& cause) {
            kept_.erase(typeid(Statement));
            throw TranslatedFailure(path_, cause);
        }
    }

private:
    template <class Statement> Statement& Kept()
    {
        std::unique_ptr<KeptStatement>& kept = kept_[typeid(Statement)];
        if (!kept)
            kept = std::make_unique<Statement>(*this);
        return static_cast<Statement&>(*kept);
    }

    const Dialect& dialect_;
    std::string path_;
    RowVersions versions_;
    soci::session session_;
    std::unordered_map<std::type_index, std::unique_ptr<KeptStatement>> kept_;
};

} // namespace kova::family
