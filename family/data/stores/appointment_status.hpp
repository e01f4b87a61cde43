#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/rows/rows.hpp"

#include <optional>
#include <vector>

namespace kova::family {

class Database;

/// The values of `situacao` of an appointment.
namespace appointment_status {
inline constexpr int Booked = 1;
inline constexpr int Attended = 2;
inline constexpr int Cancelled = 3;
inline constexpr int PreSaleGenerated = 4;

constexpr bool IsAttended(long long status) { return status == Attended || status == PreSaleGenerated; }
constexpr bool IsKnown(long long status) { return status >= Booked && status <= PreSaleGenerated; }
} // namespace appointment_status

/// What a change of its status needs of a stored appointment.
struct AppointmentState {
    Key number = 0;
    int status = 0;
    Key serviceType = 0;
    /// Null on a simplified appointment.
    Nullable<Key> customer;
    /// Null where it was not booked in a package.
    Nullable<Key> package;
    /// Today's price of its service.
    Key priceInCents = 0;
    Nullable<std::string> changedAt, changedBy;
    Key version = 0;
    Key employee = 0;
    /// "yyyy-mm-dd" and "hh:mm".
    std::string startDate, startTime, endDate, endTime;
};

/// Both lock what they find, in the transaction that is open.

/// Nothing where there is no such appointment.
std::optional<AppointmentState> FindAppointment(Database& database, Key number);

/// The appointments of a package that are neither attended nor billed, by start, then number.
std::vector<AppointmentState> FindUnattendedOfPackage(Database& database, Key package);

/// Writes the status, stamps the row, raises its version and leaves its line in the audit, in the transaction
/// that is open.
void WriteStatus(Database& database, const AppointmentState& appointment, int status, const Author& author);

} // namespace kova::family
