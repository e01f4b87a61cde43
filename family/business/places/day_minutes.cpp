#include "family/business/places/day_minutes.hpp"

#include <algorithm>

namespace kova::family {

void DayMinutes::Set(PartOfDay part, bool free)
{
    const int from = std::clamp(part.from, 0, Count);
    const int until = std::clamp(part.until, from, Count);
    std::fill(free_.begin() + from, free_.begin() + until, free);
}

void DayMinutes::KeepThoseOf(const DayMinutes& other)
{
    for (std::size_t minute = 0; minute < free_.size(); ++minute)
        free_[minute] = free_[minute] && other.free_[minute];
}

void DayMinutes::TakeThoseOf(const DayMinutes& other)
{
    for (std::size_t minute = 0; minute < free_.size(); ++minute)
        free_[minute] = free_[minute] && !other.free_[minute];
}

bool DayMinutes::AreFree(int from, int length) const
{
    if (from < 0 || from + length > Count)
        return false;
    const auto first = free_.begin() + from;
    return std::find(first, first + length, false) == first + length;
}

} // namespace kova::family
