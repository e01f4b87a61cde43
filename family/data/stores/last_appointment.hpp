#pragma once

#include "family/data/engine/key.hpp"

namespace kova::family {

class Database;

/// The animal's appointment with the highest number, the one that was booked last; 0 where it has none. Fails
/// as Database::With.
Key LastAppointmentOf(Database& database, Key animal);

} // namespace kova::family
