#include "family/data/audit/days_of_news.hpp"

#include "family/data/audit/audit_lines.hpp"

#include <map>
#include <ranges>
#include <utility>

namespace kova::family {

namespace {

/// What a line does not tell is as it is now.
std::string Kept(const AuditedColumns& columns, const char* column, const Nullable<std::string>& now)
{
    const auto kept = columns.find(column);
    return kept != columns.end() && kept->second ? *kept->second : now.ValueOr({});
}

DaysOfAppointment DaysIn(const AuditedColumns& columns, const NewsOfRow& row)
{
    return {Kept(columns, "data_inicial", row.begins), Kept(columns, "data_final", row.ends)};
}

/// A line that cannot be read tells nothing.
AuditedColumns Read(const Nullable<std::string>& written)
{
    try {
        return ReadAuditedColumns(written);
    } catch (const DatabaseFailure&) {
        return {};
    }
}

} // namespace

std::vector<DaysOfAppointment> DaysOf(const NewsOfRow& row)
{
    std::vector<DaysOfAppointment> days;
    for (const Nullable<std::string>* kept : {&row.before, &row.after}) {
        if (kept->IsNull())
            continue;
        DaysOfAppointment told = DaysIn(Read(*kept), row);
        const bool isThere = !told.first.empty() && !told.last.empty();
        if (isThere && (days.empty() || days.front() != told))
            days.push_back(std::move(told));
    }
    return days;
}

void TakeDaysOfTheTime(std::vector<NewsOfRow>& rows)
{
    std::map<Key, DaysOfAppointment> then;
    for (NewsOfRow& row : std::views::reverse(rows)) {
        if (const auto known = then.find(row.key); known != then.end() && row.table == "agendamento") {
            row.begins = known->second.first;
            row.ends = known->second.last;
        }
        if (const auto days = DaysOf(row); !days.empty() && !row.before.IsNull())
            then[row.key] = days.front();
    }
}

} // namespace kova::family
