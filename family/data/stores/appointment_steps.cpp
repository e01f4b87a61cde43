#include "family/data/stores/appointment_steps.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audited_row.hpp"

namespace kova::family {

namespace {

bool HasVersion(const AuditedColumns& columns, Key version)
{
    const auto kept = columns.find("versao");
    return kept != columns.end() && kept->second == std::to_string(version);
}

/// The row before a change or a removal; nothing where the line is not about that row.
std::optional<AppointmentRow> Before(const AuditLine& line, const AppointmentRow& after)
{
    if (line.operation == audit_operation::Change && !HasVersion(line.after, after.versao))
        return std::nullopt;
    AppointmentRow before = after;
    if (!line.before.contains("versao"))
        return std::nullopt;
    const bool isWhole = line.operation == audit_operation::Removal;
    const bool isTaken =
        (isWhole ? TakeRow(line.before, before) : TakeColumns(line.before, before)).has_value();
    return isTaken ? std::optional(before) : std::nullopt;
}

} // namespace

std::optional<std::vector<AppointmentStep>> StepsSince(Database& database, const AppointmentRow& stored,
                                                       Key version)
{
    // A change raises the version by one, and so do a removal and its restoration together.
    const Key most = 2 * (stored.versao - version);
    if (most < 0)
        return std::nullopt;
    std::vector<AppointmentStep> steps;
    AppointmentRow row = stored;
    for (const AuditLine& line : FindAuditLines(database, AppointmentRow::Table, stored.numero, most)) {
        if (row.versao == version)
            break;
        if (line.operation == audit_operation::Restoration)
            continue;
        const std::optional<AppointmentRow> before = Before(line, row);
        if (!before)
            return std::nullopt;
        steps.push_back({line, *before, row});
        row = *before;
    }
    return row.versao == version ? std::optional(steps) : std::nullopt;
}

} // namespace kova::family
