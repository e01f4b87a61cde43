#pragma once

#include "agenda/contracts/date_time.hpp"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace kova::family {

class Database;

/// The registered holidays: those of every year, and those of one date. They stay in memory with the
/// connection, a century of them, and are read again when the database has counted a change. The Database
/// must outlive the calendar.
class HolidayCalendar {
public:
    /// By "mm-dd" and by "yyyy-mm-dd".
    using Names = std::map<std::string, std::string, std::less<>>;

    /// Where they stand, and the name under which their changes are counted.
    static constexpr const char* Table = "feriado";

    /// As the holidays stand when they are first asked for.
    explicit HolidayCalendar(Database& database) : database_(database) { }
    /// The same where it is known already how often they were changed.
    HolidayCalendar(Database& database, long long changes) : database_(database), changes_(changes) { }

    /// Name of the holiday on that date; nothing where it is none. One of that very date goes before one of
    /// every year. Fails with a DatabaseFailure.
    std::optional<std::string> On(Date date);

private:
    Database& database_;
    std::optional<long long> changes_;
    std::shared_ptr<const Names> names_;
};

} // namespace kova::family
