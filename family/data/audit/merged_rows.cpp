#include "family/data/audit/merged_rows.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/rows/select_rows.hpp"

#include <cstdlib>
#include <limits>

namespace kova::family {

namespace {

struct LineOfUnion {
    static constexpr const char* Table = AuditRow::Table;
    static constexpr const char* Condition = "operacao = 'uniao'";
    Key code = 0, key = 0;
    std::string table;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("chave", key);
        visit("tabela", table);
    }
};

/// The keys that the row's lines tell of under that name.
std::vector<Key> KeysTold(Database& database, const char* table, Key key, const char* name)
{
    std::vector<Key> keys;
    for (const AuditLine& line : FindAuditLines(database, table, key, std::numeric_limits<Key>::max())) {
        const auto told = line.after.find(name);
        if (line.operation == audit_operation::Merging && told != line.after.end() && told->second)
            keys.push_back(std::strtoll(told->second->c_str(), nullptr, 10));
    }
    return keys;
}

} // namespace

Key GoesOnAs(Database& database, const char* table, Key key)
{
    // A key is never given again, so that the way has an end.
    for (auto next = KeysTold(database, table, key, "unido_a"); !next.empty();
         next = KeysTold(database, table, key, "unido_a"))
        key = next.front();
    return key;
}

std::vector<Key> HaveGoneInto(Database& database, const char* table, Key key)
{
    std::vector<Key> all = KeysTold(database, table, key, "unido");
    for (std::size_t at = 0; at < all.size(); ++at) {
        for (const Key more : KeysTold(database, table, all[at], "unido"))
            all.push_back(more);
    }
    return all;
}

std::set<Key> RowsOfUnions(Database& database, const char* table)
{
    std::set<Key> keys;
    SelectRows<LineOfUnion>(database, [&](const LineOfUnion& line) {
        if (line.table == table)
            keys.insert(line.key);
    });
    return keys;
}

} // namespace kova::family
