#pragma once

#include "agenda/contracts/date_time.hpp"
#include "bench/raw_server.hpp"

#include <set>
#include <string>
#include <vector>

namespace kova::bench {

/// A bath that a customer wants, at an hour at which the employee is free.
struct Order {
    std::int64_t customer = 0, animal = 0, employee = 0;
    Date date;
    /// "hh:mm"
    std::string start, end;
};

/// The orders that the desks book: each desk has an employee and customers of its own, and no hour is given
/// twice, so that none is refused. The days are working days behind all that have appointments.
class OrderBook {
public:
    /// Throws std::runtime_error where the shop has too few employees or customers for the desks.
    OrderBook(const RawServer& server, int desks);

    /// The next orders of that desk.
    std::vector<Order> Take(int desk, int count);

private:
    struct Owner {
        std::int64_t customer = 0, animal = 0;
    };

    Order Next(int desk);
    Date WorkingDay(std::size_t number);

    std::vector<std::int64_t> employees_;
    std::vector<Owner> owners_;
    /// "mm-dd" and "yyyy-mm-dd"
    std::set<std::string> holidays_;
    /// The last day that has appointments, and the working days behind it, as many as were needed yet.
    std::vector<Date> workingDays_;
    std::vector<int> taken_;
};

} // namespace kova::bench
