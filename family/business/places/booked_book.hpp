#pragma once

#include "family/business/places/day_minutes.hpp"
#include "family/business/time_span.hpp"

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace kova::family {

class Database;

/// The booked hours of one employee or of all, read as they are asked for: days that follow each other
/// together, more of them each time, and one that lies far ahead alone.
class BookedBook {
public:
    /// `employee` 0 is everybody. No day before `from` is asked for.
    BookedBook(Database& database, Key employee, Date from);

    struct Day {
        /// The minutes at which so many appointments run that there is no room for one more.
        DayMinutes full;
        /// The minutes of all appointments of the day together.
        int booked = 0;
    };

    /// Of an employee with room for `limit` at once; 0 is for any number. Fails as Database::With.
    Day On(Key employee, Date date, int limit);

private:
    void Require(Key employee, Date date);
    void ReadUntil(Date last);
    void ReadDaysOf(Key employee, Date first, Date last);
    void Add(Key employee, const TimeSpan& span, Date first, Date last);

    Database& database_;
    Key employee_;
    /// The last day of those that follow each other.
    Date readUntil_;
    Long daysAtOnce_ = 2;
    using DayOfEmployee = std::pair<Key, Date>;
    std::set<DayOfEmployee> readAlone_;
    std::map<DayOfEmployee, std::vector<PartOfDay>> parts_;
};

} // namespace kova::family
