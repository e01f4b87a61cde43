#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/audit/author.hpp"

#include <functional>
#include <memory>

namespace kova::family {
class Database;
}

namespace kova::timetable {

/// What the timetable works with: the shop's database, the clock, and who is at the desk at this moment.
struct Desk {
    std::shared_ptr<family::Database> database;
    std::function<DateTime()> now;
    std::function<family::Author()> author;
};

} // namespace kova::timetable
