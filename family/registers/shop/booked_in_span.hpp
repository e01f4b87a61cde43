#pragma once

#include "family/data/engine/key.hpp"

#include <string>

namespace kova::family {
class Database;
}

namespace kova::family::registers {

/// A span of time and whom it is about; 0 is all employees. Moments are "yyyy-mm-dd hh:mm", the last may be
/// "24:00" of its day.
struct SpanOfEmployee {
    Key employee = 0;
    std::string from, until;

    bool operator==(const SpanOfEmployee&) const = default;
};

/// Appointments that are booked and run in the span, for a question: "Há 3 agendamentos nesse período; o
/// primeiro: 01/12/2026 09:00, Zé, com Bia."; empty where there are none. Fails with a DatabaseFailure.
std::string BookedInSpan(Database& database, const SpanOfEmployee& span);

} // namespace kova::family::registers
