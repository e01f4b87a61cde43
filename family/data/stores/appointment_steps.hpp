#pragma once

#include "family/data/audit/audit_lines.hpp"
#include "family/data/stores/appointment_rows.hpp"

namespace kova::family {

/// One write of an appointment.
struct AppointmentStep {
    AuditLine line;
    AppointmentRow before, after;
};

/// The writes that have led from that version to the stored row, newest first. Nothing where the audit does
/// not tell of them without a gap. Fails as FindAuditLines.
std::optional<std::vector<AppointmentStep>> StepsSince(Database& database, const AppointmentRow& stored,
                                                       Key version);

} // namespace kova::family
