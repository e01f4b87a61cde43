#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::family {

/// What a caller of clsAgenda has written into its properties; it stays from one write to the next.
struct AppointmentInput {
    bool onlyStatus = false;
    Double number = 0;
    Integer statusNow = 0;
    Integer statusNew = 0;
    // Sent along where a pre-sale is made or undone. A change of the status alone goes by the stored record,
    // which another desk may have changed since the caller read it.
    Double customer = 0;
    Long animal = 0;
    Long serviceType = 0;
    Double service = 0;
    Long employee = 0;
    Text startDate;
};

} // namespace kova::family
