#include "family/data/selections/audited_texts.hpp"

#include <algorithm>
#include <map>
#include <set>

namespace kova::family {

namespace {

/// Reading all takes less than finding more writes than these.
constexpr std::size_t MostWrites = 100;
constexpr int MostLines = 1000;

} // namespace

AuditedTexts::AuditedTexts(Database& database, std::vector<std::string> tables, const std::string& selection,
                           const std::vector<std::string>& ofRow, Order order)
    : FoldedTexts(database, tables, selection.c_str(), order),
      tables_(std::move(tables)),
      readLastLine_((database.Session().prepare << "select coalesce(max(codigo), 0) from auditoria",
                     soci::into(lastLine_))),
      readLines_((database.Session().prepare << "select codigo, tabela, chave from auditoria"
                                                " where codigo > :lida order by codigo limit "
                          + std::to_string(MostLines),
                  soci::use(lastLine_, "lida"), soci::into(line_), soci::into(table_), soci::into(written_)))
{
    for (const std::string& condition : ofRow)
        readRow_.push_back(std::make_unique<soci::statement>(
            (database.Session().prepare << selection + condition, soci::use(written_, "chave"),
             soci::into(changed_.key), soci::into(changed_.text))));
}

void AuditedTexts::BeginReading()
{
    readLastLine_.execute();
    while (readLastLine_.fetch())
        continue;
}

bool AuditedTexts::FindWrites()
{
    writes_.clear();
    int lines = 0;
    long long newest = lastLine_;
    readLines_.execute();
    while (readLines_.fetch()) {
        ++lines;
        newest = line_;
        if (const auto table = std::ranges::find(tables_, table_); table != tables_.end())
            writes_.emplace_back(static_cast<std::size_t>(table - tables_.begin()), written_);
    }
    lastLine_ = newest;
    return lines < MostLines && writes_.size() <= MostWrites;
}

/// What was counted and has no line was written past the audit; what has a line and was not counted may hide
/// another that was.
bool AuditedTexts::TakeChanges(TextRows& rows, long long counted)
{
    if (!FindWrites() || static_cast<long long>(writes_.size()) != counted)
        return false;
    std::set<Key> gone;
    std::map<Key, TextOfRow> come;
    for (const auto& [table, key] : writes_) {
        if (table == 0)
            gone.insert(key);
        written_ = key;
        soci::statement& reading = *readRow_[table];
        reading.execute();
        while (reading.fetch()) {
            gone.insert(changed_.key);
            Shape(changed_);
            come[changed_.key] = changed_;
        }
    }
    for (const Key key : gone)
        rows.Remove(key);
    for (const auto& [key, row] : come)
        rows.Insert(row);
    return true;
}

} // namespace kova::family
