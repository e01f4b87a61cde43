#pragma once

#include "bench/orders.hpp"

#include <map>

namespace kova::bench {

/// A row as texts by its columns; what is not there is Null.
using BareRow = std::map<std::string, std::optional<std::string>>;

/// A booking as it is stored: the appointment, and the line about it in the audit.
struct BareBooking {
    BareRow appointment, audit;

    /// Reads the newest. Throws std::runtime_error where there is none.
    static BareBooking Newest(const RawServer& server);
    /// Without the keys that the server gives, to compare.
    BareBooking WithoutKeys() const;

    bool operator==(const BareBooking&) const = default;
};

/// Writes bookings like a given one, each in a transaction of its own, by two kept statements.
class BareDesk {
public:
    BareDesk(const std::string& address, BareBooking model);

    void Book(const Order& order);

private:
    void FillIn(const Order& order);

    const RawServer server_;
    BareBooking booking_;
};

} // namespace kova::bench
