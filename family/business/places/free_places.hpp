#pragma once

#include "family/business/time_span.hpp"
#include "family/data/engine/key.hpp"
#include "family/data/stores/work_tables.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

/// What somebody asks for: when there is room.
struct PlaceWish {
    /// 0 is whoever is there; an employee who is not active has no places.
    Key employee = 0;
    /// How long it takes, from 1 to 24 * 60.
    int minutes = 0;
    /// No place begins before that moment, or on a day after the last one.
    DateTime from;
    Date until;
    /// Within which part of the day a place lies as a whole.
    PartOfDay part{0, 24 * 60};
    /// Places begin at multiples of so many minutes from midnight, 1 to 24 * 60.
    int step = 15;
    /// The most that are told, at least 1.
    int count = 5;
    /// How many days after the place the same hours have to be free too, with the same employee: each is a
    /// session of a series.
    std::vector<Long> daysOfSeries = {};
};

struct FreePlace {
    Key employee = 0;
    std::string nickname;
    TimeSpan span;

    bool operator==(const FreePlace&) const = default;
};

/// The next places for it, by their beginning, no two of which overlap. A place lies within one day, on which
/// the shop is open by its weekday and that is no holiday; the employee is at work throughout, not away, and
/// has fewer appointments at any time than may run at once: what a booking asks too. Where several employees
/// have room the one with the fewest booked minutes of that day is told, then the first by nickname and code.
/// Fails as Database::With, and with 5 where the wish is none.
std::vector<FreePlace> NextFreePlaces(Database& database, const PlaceWish& wish);

} // namespace kova::family
