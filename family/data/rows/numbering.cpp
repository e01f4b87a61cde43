#include "family/data/rows/numbering.hpp"

#include <algorithm>

namespace kova::family {

namespace {

long long Ask(Database& database, const std::string& question)
{
    long long answer = 0;
    database.Session() << question, soci::into(answer);
    return answer;
}

} // namespace

void NumberOn(Database& database)
{
    const std::string& statement = database.GetDialect().numberOn;
    if (statement.empty())
        return;
    try {
        database.Session() << statement;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

long long LastNumber(Database& database, const StoredTable& table)
{
    const std::string key = table.key, name = table.name;
    return std::max(
        {Ask(database, database.GetDialect().lastGiven(name, key)),
         Ask(database, "select coalesce(max(" + key + "), 0) from " + name),
         Ask(database, "select coalesce(max(chave), 0) from auditoria where tabela = '" + name + "'")});
}

void NumberOnAfter(Database& database, const StoredTable& table, long long last)
{
    if (last < 1)
        return;
    for (const std::string& statement : database.GetDialect().numberAfter(table.name, table.key, last))
        database.Session() << statement;
}

} // namespace kova::family
