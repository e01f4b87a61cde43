#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/demo/customers.hpp"

namespace kova::family {

/// When the fictional shop is open and how much it has to do.
struct AppointmentPlan {
    /// The day that is "today" for the shop: what lies before is done, what lies after is booked.
    Date today;
    Date firstDay;
    /// Days from the first on; 0 goes on until `total` is reached.
    int days = 0;
    long long total = 0;
    int perDay = 40;
    /// With the lines that the writes of a desk leave in the audit, which make a database several times
    /// larger.
    bool audited = false;
};

/// Writes the appointments with their packages and pre-sales.
void WriteAppointments(Database& database, const ShopRegisters& registers,
                       const std::vector<ShopCustomer>& customers, const AppointmentPlan& plan,
                       Random& random);

} // namespace kova::family
