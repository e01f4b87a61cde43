#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/rows/people_rows.hpp"

namespace kova::family {

class Database;

/// Writes a new customer with its contact channels, in the transaction that is open or in one of its own
/// for each row. The columns that follow from others are filled here, so every new customer goes through
/// it. Keys are given by the caller. Fails as Database::With.
void WriteCustomer(Database& database, CustomerRow customer, const std::vector<ChannelRow>& channels);

/// The same with the customer's line in the audit, in the transaction that is open. A customer's key of 0,
/// and the channels' keys always, are given by the engine. Answers the customer's.
Key AddCustomer(Database& database, CustomerRow customer, std::vector<ChannelRow> channels,
                const Author& author);

} // namespace kova::family
