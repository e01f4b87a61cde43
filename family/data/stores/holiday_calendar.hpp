#pragma once

#include "agenda/contracts/date_time.hpp"

#include <map>
#include <optional>
#include <set>
#include <string>

namespace kova::family {

class Database;

/// The registered holidays: those of every year, and those of one date. A year's are read when it is first
/// asked for and stay as they stood then: a shop has those of a century registered, and a booking needs few.
/// The Database must outlive it.
class HolidayCalendar {
public:
    explicit HolidayCalendar(Database& database) : database_(database) { }

    /// Name of the holiday on that date; nothing where it is none. One of that very date goes before one of
    /// every year. Fails with a DatabaseFailure.
    std::optional<std::string> On(Date date);

private:
    void Read(int year);

    Database& database_;
    std::set<int> years_;
    /// By "mm-dd" and by "yyyy-mm-dd".
    std::map<std::string, std::string, std::less<>> names_;
};

} // namespace kova::family
