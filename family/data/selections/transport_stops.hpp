#pragma once

#include "family/data/rows/rows.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

/// Where a driver of the shop's has to be on a day: at somebody's, to fetch an animal for an appointment, or
/// to take it home after one.
struct TransportStop {
    Key appointment = 0;
    bool isFetch = true;
    /// "hh:mm": by then it has to be in the shop, or from then on it can be taken home.
    std::string time;
    /// Empty of somebody without a register, of whom the shop has no address.
    std::string district, address;
    std::string customer, channels, animal, employee;

    bool operator==(const TransportStop&) const = default;
};

/// Those of a day "yyyy-mm-dd" by time and district, whatever letters and accents it is written with; what is
/// cancelled has none. An appointment of several days has its two on two of them. Fails as Database::With.
std::vector<TransportStop> FindTransportStops(Database& database, const std::string& day);

} // namespace kova::family
