#pragma once

#include "family/data/rows/people_rows.hpp"
#include "family/registers/description/column.hpp"

namespace kova::family::registers {

/// A customer with its contact channels.
struct CustomerRecord : CustomerRow {
    std::vector<ChannelRow> channels;
    /// Those that stood there before the channels were cleared for others.
    std::vector<ChannelRow> formerChannels{};

    /// Fills in what follows from the rest: the kind of a person who has none, by the document.
    void Complete();
};

namespace customer_columns {
inline constexpr const char* Document = "Documento";
inline constexpr const char* Kind = "Tipo de pessoa";
inline constexpr const char* PostalCode = "CEP";
} // namespace customer_columns

const Columns<CustomerRecord>& CustomerColumns();

/// Why the kind of person does not go with the document; empty where it does.
std::string WrongKindOfPerson(const CustomerRecord& record);

/// Why the postal code does not lie in the state; empty where it does, or one of them is missing.
std::string WrongPostalCode(const CustomerRecord& record);

/// A customer's code by its document.
struct KnownDocument {
    static constexpr const char* Table = CustomerRow::Table;
    static constexpr const char* FoundBy = "documento";
    Key code = 0;
    std::string document;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("documento", document);
    }
};

/// The channels of a customer.
struct ChannelOfCustomer : ChannelRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

} // namespace kova::family::registers
