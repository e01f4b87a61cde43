#include "family/data/stores/customer_store.hpp"

#include "family/data/audit/add_row.hpp"

namespace kova::family {

void WriteCustomer(Database& database, CustomerRow customer, const std::vector<ChannelRow>& channels)
{
    customer.Compose(channels);
    Insert(database, customer);
    for (const ChannelRow& channel : channels)
        Insert(database, channel);
}

Key AddCustomer(Database& database, CustomerRow customer, std::vector<ChannelRow> channels,
                const Author& author)
{
    customer.Compose(channels);
    const Key key = AddRow(database, std::move(customer), author);
    for (ChannelRow& channel : channels) {
        channel.codigoDoCliente = key;
        InsertNew(database, channel);
    }
    return key;
}

} // namespace kova::family
