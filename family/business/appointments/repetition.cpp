#include "family/business/appointments/repetition.hpp"

#include "family/business/appointments/appointment_input.hpp"

#include <algorithm>

namespace kova::family {

namespace {

Date AddMonths(Date date, Long months)
{
    const Long month = date.month - 1 + months;
    date.year += month / 12;
    date.month = month % 12 + 1;
    date.day = std::min(date.day, DaysOfMonth(date.year, date.month));
    return date;
}

/// Days from the first one to the one with that number.
Long DistanceTo(Long number, Date first, Integer frequency)
{
    switch (frequency) {
    case AppointmentInput::Weekly: return 7 * number;
    case AppointmentInput::Fortnightly: return 14 * number;
    default: return DayNumber(AddMonths(first, number)) - DayNumber(first);
    }
}

} // namespace

std::vector<TimeSpan> Repeated(const TimeSpan& first, Long repetitions, Integer frequency)
{
    if (repetitions > MostRepetitions)
        throw Failure(FailureNumber::InvalidArgument, "A quantidade de reagendamentos vai de 0 a 999.");
    const bool repeats = frequency >= AppointmentInput::Weekly && frequency <= AppointmentInput::Monthly;
    std::vector<TimeSpan> spans = {first};
    for (Long number = 1; repeats && number <= repetitions; ++number)
        spans.push_back(ShiftedByDays(first, DistanceTo(number, first.start.date, frequency)));
    return spans;
}

} // namespace kova::family
