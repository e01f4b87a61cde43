#include "family/data/numbering.hpp"

#include <algorithm>

namespace kova::family {

namespace {

bool IsServer(Database& database) { return database.GetDialect().backend == PostgresqlDialect().backend; }

long long Ask(Database& database, const std::string& question)
{
    long long answer = 0;
    database.Session() << question, soci::into(answer);
    return answer;
}

std::string Quoted(const std::string& name) { return "'" + name + "'"; }

std::string SequenceOf(const StoredTable& table)
{
    return "pg_get_serial_sequence(" + Quoted(table.name) + ", " + Quoted(table.key) + ")";
}

/// What the engine itself remembers.
long long LastGiven(Database& database, const StoredTable& table)
{
    if (IsServer(database))
        return Ask(database,
                   "select coalesce(pg_sequence_last_value(" + SequenceOf(table) + "::regclass), 0)");
    return Ask(database,
               "select coalesce(max(seq), 0) from sqlite_sequence where name = " + Quoted(table.name));
}

} // namespace

long long LastNumber(Database& database, const StoredTable& table)
{
    const std::string key = table.key, name = table.name;
    return std::max(
        {LastGiven(database, table), Ask(database, "select coalesce(max(" + key + "), 0) from " + name),
         Ask(database, "select coalesce(max(chave), 0) from auditoria where tabela = " + Quoted(name))});
}

void NumberOnAfter(Database& database, const StoredTable& table, long long last)
{
    if (last < 1)
        return;
    if (IsServer(database)) {
        Ask(database, "select setval(" + SequenceOf(table) + ", " + std::to_string(last) + ")");
        return;
    }
    database.Session() << "delete from sqlite_sequence where name = " + Quoted(table.name);
    database.Session() << "insert into sqlite_sequence (name, seq) values (" + Quoted(table.name) + ", "
            + std::to_string(last) + ")";
}

} // namespace kova::family
