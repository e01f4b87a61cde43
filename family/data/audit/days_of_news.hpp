#pragma once

#include "family/data/audit/news.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// The days of an appointment, "yyyy-mm-dd".
struct DaysOfAppointment {
    std::string first, last;

    bool operator==(const DaysOfAppointment&) const = default;
};

/// Of what is told of an appointment: when it was before, where it was there, and when it is from then on,
/// where it is there; once where it has stayed. Empty of anything else.
std::vector<DaysOfAppointment> DaysOf(const NewsOfRow& row);

/// Of lines in their order, which come with the days of the appointments as they are now: writes into each
/// the days that the appointment had then, as the lines behind it tell.
void TakeDaysOfTheTime(std::vector<NewsOfRow>& rows);

} // namespace kova::family
