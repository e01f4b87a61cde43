#include "family/data/engine/change_count.hpp"

#include "family/data/engine/database.hpp"

namespace kova::family {

std::vector<std::string> CountedRights() { return {"usuario", "papel", "papel_direito"}; }

std::string ChangeCount::Selection(const std::vector<std::string>& tables)
{
    std::string names;
    for (const std::string& table : tables)
        names += (names.empty() ? "'" : ", '") + table + "'";
    return "select cast(coalesce(sum(alteracoes), 0) as bigint) from contador_de_alteracoes where tabela in ("
        + names + ")";
}

ChangeCount::ChangeCount(Database& database, const std::vector<std::string>& tables)
    : count_((database.Session().prepare << Selection(tables), soci::into(counted_)))
{
}

// To the end of its one row: a statement that stands upon a row holds the file's state of that moment.
long long ChangeCount::Asked()
{
    count_.execute();
    while (count_.fetch())
        continue;
    return counted_;
}

} // namespace kova::family
