#include "family/data/engine/migration.hpp"

#include "family/data/engine/database.hpp"

namespace kova::family {

namespace {

void Run(soci::session& session, const Dialect& dialect, const Migration& migration)
{
    for (const std::string& statement : migration.statements(dialect))
        session << statement;
    if (migration.work != nullptr)
        migration.work(session, dialect);
    session << "insert into versao_do_esquema (versao) values (:versao)", soci::use(migration.version);
}

void RollBack(soci::session& session)
{
    try {
        session.rollback();
    } catch (const soci::soci_error&) {
        // On some failures the engine has already undone everything itself.
        return;
    }
}

} // namespace

int NewestVersion(Migrations migrations) { return migrations.back().version; }

int StoredVersion(soci::session& session)
{
    int version = 0;
    soci::indicator found = soci::i_null;
    session << "select max(versao) from versao_do_esquema", soci::into(version, found);
    return found == soci::i_ok ? version : 0;
}

int VersionOf(Database& database)
{
    int tables = 0;
    database.Session() << database.GetDialect().countVersionTables, soci::into(tables);
    return tables == 1 ? StoredVersion(database.Session()) : 0;
}

std::optional<std::string> RefusalOfNewer(const std::string& path, int version, Migrations migrations)
{
    if (version <= NewestVersion(migrations))
        return std::nullopt;
    return RefusalOfOther(path, version, NewestVersion(migrations));
}

std::optional<std::string> RefusalOfOther(const std::string& path, int version, int known)
{
    if (version == known)
        return std::nullopt;
    if (version < known)
        return RefusalOfOlder(path, version, known);
    return "O banco de dados \"" + path + "\" é da versão " + std::to_string(version)
        + " e este programa conhece até a versão " + std::to_string(known)
        + ". Atualize o programa. Nada foi alterado.";
}

std::string RefusalOfOlder(const std::string& path, int version, int known)
{
    return "O banco de dados \"" + path + "\" é da versão " + std::to_string(version)
        + " e este programa trabalha com a versão " + std::to_string(known)
        + ". Atualize o banco com \"agenda-data migrate\", que antes faz uma cópia. Nada foi alterado.";
}

void RunMissing(soci::session& session, const Dialect& dialect, Migrations migrations)
{
    session << "create table if not exists versao_do_esquema (versao integer not null primary key)";
    const int stored = StoredVersion(session);
    for (const Migration& migration : migrations) {
        if (migration.version > stored)
            Run(session, dialect, migration);
    }
}

void Migrate(soci::session& session, const Dialect& dialect, Migrations migrations)
{
    session << dialect.beginOfSchemaChange;
    try {
        RunMissing(session, dialect, migrations);
        session.commit();
    } catch (const soci::soci_error&) {
        RollBack(session);
        throw;
    }
}

} // namespace kova::family
