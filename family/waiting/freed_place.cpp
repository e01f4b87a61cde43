#include "family/waiting/freed_place.hpp"

#include "family/data/audit/audited_row.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/appointment_status.hpp"

namespace kova::family::waiting {

namespace {

FreedPlace PlaceOf(const AppointmentRow& row)
{
    return {row.codigoDoFuncionario,
            ReadIsoSpan(row.dataInicial, row.horaInicial, row.dataFinal, row.horaFinal)};
}

bool TakesRoom(const AppointmentRow& row) { return row.situacao != appointment_status::Cancelled; }

/// Whether all of it is still taken by the other.
bool Covers(const FreedPlace& now, const FreedPlace& before)
{
    return now.employee == before.employee && now.span.start <= before.span.start
        && before.span.end <= now.span.end;
}

} // namespace

std::optional<FreedPlace> FreedByLastWrite(Database& database, Key appointment)
{
    const std::vector<AuditLine> lines = FindAuditLines(database, AppointmentRow::Table, appointment, 1);
    if (lines.empty() || lines.front().before.empty())
        return std::nullopt;
    const auto stored = FindByKey<AppointmentRow>(database, appointment);
    // A line keeps of a change what differs, and of a deletion the whole row.
    const AuditedColumns& kept = lines.front().before;
    AppointmentRow before = stored.value_or(AppointmentRow());
    const bool isTaken = (stored ? TakeColumns(kept, before) : TakeRow(kept, before)).has_value();
    if (!isTaken || !TakesRoom(before))
        return std::nullopt;
    const FreedPlace freed = PlaceOf(before);
    if (stored && TakesRoom(*stored) && Covers(PlaceOf(*stored), freed))
        return std::nullopt;
    return freed;
}

} // namespace kova::family::waiting
