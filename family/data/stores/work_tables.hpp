#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/key.hpp"

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kova::family {

class Database;

/// The minutes from midnight to "hh:mm", which may be "24:00".
int MinutesOf(const std::string& time);

/// In minutes from midnight: from its beginning up to, and without, its end.
struct PartOfDay {
    int from = 0, until = 0;
};

/// The hours of each day of the week, which are 1 Sunday to 7 Saturday.
class WeeklyHours {
public:
    /// Parts of the same day come by their beginning; they may touch and overlap.
    void Add(int weekday, PartOfDay part) { days_.at(static_cast<std::size_t>(weekday)).push_back(part); }
    bool HasAnyOn(int weekday) const { return !days_.at(static_cast<std::size_t>(weekday)).empty(); }
    bool HasAny() const;
    const std::vector<PartOfDay>& On(int weekday) const
    {
        return days_.at(static_cast<std::size_t>(weekday));
    }
    /// Whether the whole part lies within the day's hours, breaks between them left out.
    bool Cover(int weekday, PartOfDay part) const;

private:
    std::array<std::vector<PartOfDay>, 8> days_;
};

/// From its beginning up to, and without, its end, which may be at 24:00.
struct Absence {
    DateTime from, until;
    std::string reason;
};

/// When the shop is open and who is at work.
struct WorkTables {
    WeeklyHours shop;
    /// The employees who have hours of their own.
    std::map<Key, WeeklyHours> employees;
    /// Of each employee by their beginning; those of all stand under 0.
    std::map<Key, std::vector<Absence>> absences;
};

/// They stay in memory with the connection and are read again when the database has counted a change.
/// `changes` is how often they were changed, read before (BookingRegisters); nothing where that is to be
/// asked. Whoever holds them has them as they stood then. Fails as Database::With.
std::shared_ptr<const WorkTables> FindWorkTables(Database& database, std::optional<long long> changes);

/// Where they stand, and the names under which their changes are counted.
std::vector<std::string> NamesOfWorkTables();

} // namespace kova::family
