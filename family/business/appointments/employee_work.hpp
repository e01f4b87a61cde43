#pragma once

#include "family/business/time_span.hpp"
#include "family/data/stores/booking_registers.hpp"
#include "family/data/stores/work_tables.hpp"

#include <memory>
#include <optional>

namespace kova::family {

class Database;

/// When one employee works: while the shop is open, within hours of its own where it has some, and not while
/// it or everybody is away. On a day of the week on which the shop is closed its hours say nothing: whether
/// to book then is a question to the user. The employee's own count on such a day, too.
/// All of it as it stood when the booking looked up what it refers to. A change of hours does not wait for
/// bookings nor they for it: what was booked before it is there afterwards.
class EmployeeWork {
public:
    /// `changes` is how often the tables were changed, where that is known (FindWorkTables).
    EmployeeWork(Database& database, const BookedEmployee& employee, std::optional<long long> changes);

    /// Why the employee does not work throughout the span, for the user; empty where it does.
    Text ObjectionTo(const TimeSpan& span);
    bool IsAtWork(const TimeSpan& span);
    /// That the employee does not work then.
    Text NotAtWorkText(Date date) const;

    bool IsOpenOn(Date date) { return Tables().shop.HasAnyOn(Weekday(date)); }
    /// Whether there is a day of the week on which it is.
    bool IsEverOpen() { return Tables().shop.HasAny(); }
    bool HasOwnHours() { return Tables().employees.contains(employee_); }
    /// Whether there is an open day of the week on which the employee works at the hours of the span,
    /// absences aside.
    bool WorksOnSomeOpenDay(const TimeSpan& span);

private:
    /// Of an absence, within a span.
    struct Away {
        DateTime moment;
        const Absence* absence = nullptr;
    };

    const WorkTables& Tables();
    /// The first day of the span on which the week's hours do not cover it.
    std::optional<Date> FirstDayNotCovered(const TimeSpan& span);
    /// The first moment of the span at which the employee is away.
    std::optional<Away> FirstAway(const TimeSpan& span);

    Database& database_;
    Key employee_;
    Text nickname_;
    std::optional<long long> changes_;
    /// Looked up when they are first needed.
    std::shared_ptr<const WorkTables> tables_;
};

} // namespace kova::family
