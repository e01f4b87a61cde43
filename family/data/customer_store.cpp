#include "family/data/customer_store.hpp"

#include "family/data/insert_row.hpp"

namespace kova::family {

void WriteCustomer(Database& database, CustomerRow customer, const std::vector<ChannelRow>& channels)
{
    customer.Compose(channels);
    Insert(database, customer);
    for (const ChannelRow& channel : channels)
        Insert(database, channel);
}

} // namespace kova::family
