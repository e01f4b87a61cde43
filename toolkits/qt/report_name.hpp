#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/date_time.hpp"

#include <QString>

namespace kova::qt {

/// The day that a report is about: the first date of its first record, else `today`. Leaves the records on
/// the first one. Never fails.
Date DayOfReport(RecordSet* records, Date today);

/// A name for the report's file, such as "Agendamentos 2026-11-20.pdf", without what files may not be called.
QString FileNameOfReport(const QString& title, Date day);

} // namespace kova::qt
