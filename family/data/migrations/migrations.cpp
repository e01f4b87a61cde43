#include "family/data/migrations/migrations.hpp"

namespace kova::family {

namespace {

constexpr Migration Steps[] = {
    {1, SchemaOfVersion1},
    {2, SchemaOfVersion2},
    {3, SchemaOfVersion3},
    {4, SchemaOfVersion4},
};

void Run(soci::session& session, const Dialect& dialect, const Migration& migration)
{
    for (const std::string& statement : migration.statements(dialect))
        session << statement;
    session << "insert into versao_do_esquema (versao) values (:versao)", soci::use(migration.version);
}

} // namespace

Migrations CurrentMigrations() { return Steps; }

int NewestVersion(Migrations migrations) { return migrations.back().version; }

int StoredVersion(soci::session& session)
{
    int version = 0;
    soci::indicator found = soci::i_null;
    session << "select max(versao) from versao_do_esquema", soci::into(version, found);
    return found == soci::i_ok ? version : 0;
}

void Migrate(soci::session& session, const Dialect& dialect, Migrations migrations)
{
    soci::transaction transaction(session);
    session << "create table if not exists versao_do_esquema (versao integer not null primary key)";
    // A write, although it changes nothing, makes a second program wait here instead of failing later.
    session << "delete from versao_do_esquema where versao < 0";
    const int stored = StoredVersion(session);
    for (const Migration& migration : migrations) {
        if (migration.version > stored)
            Run(session, dialect, migration);
    }
    transaction.commit();
}

} // namespace kova::family
