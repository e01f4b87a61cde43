#pragma once

#include "family/business/places/free_places.hpp"
#include "family/data/stores/waiting_list.hpp"

#include <string>
#include <vector>

namespace kova::family::waiting {

/// What somebody has left free: an appointment that was cancelled or deleted, or that has gone elsewhere.
struct FreedPlace {
    Key employee = 0;
    TimeSpan span;
};

/// Somebody who waits, with one of the services and a place for it.
struct WaitingFit {
    WaitingEntry entry;
    Key service = 0;
    FreePlace place;
};

/// Who could have it, the one first who has waited longest: whoever would do with that employee, on that day
/// and at those hours, and whose service has room there, where the time before and behind counts as far as it
/// is free too. A place begins where the freed one does, if there is room, else as near behind or before as
/// there is; none begins before `now`. Left out is who is in some desk's hand, or cannot be booked any more.
/// Each comes once. Fails as Database::With.
std::vector<WaitingFit> WhoFits(Database& database, const FreedPlace& freed, DateTime now);

} // namespace kova::family::waiting
