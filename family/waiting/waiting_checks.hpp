#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/data/stores/waiting_list.hpp"

#include <string>

namespace kova::family::waiting {

/// Done, or Invalid for the first of the columns that cannot be so: the customer and the animal are there and
/// can be booked, and so are services and employees; the days and hours exist, are not over on `today`
/// ("yyyy-mm-dd") and are long enough. In the transaction that is open. Fails as Database::With.
WriteAnswer CheckEntry(Database& database, const WaitingEntry& entry, const std::string& today);

/// Whether the customer and the animal can be booked.
bool CanStillCome(Database& database, const WaitingRow& row);

} // namespace kova::family::waiting
