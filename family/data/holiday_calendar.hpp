#pragma once

#include "agenda/contracts/date_time.hpp"

#include <map>
#include <optional>
#include <string>

namespace kova::family {

class Database;

/// The registered holidays as they stand when it is made: those of every year, and those of one date.
class HolidayCalendar {
public:
    /// Reads them all. Fails with a DatabaseFailure.
    explicit HolidayCalendar(Database& database);

    /// Name of the holiday on that date; nothing where it is none. One of that very date goes before one of
    /// every year.
    std::optional<std::string> On(Date date) const;

private:
    /// By "mm-dd" and by "yyyy-mm-dd".
    std::map<std::string, std::string, std::less<>> names_;
};

} // namespace kova::family
