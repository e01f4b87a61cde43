#include "family/business/places/booked_book.hpp"

#include "family/data/stores/booked_days.hpp"

#include <algorithm>
#include <array>

namespace kova::family {

namespace {

constexpr Long MostDaysAtOnce = 32;

TimeSpan SpanOf(const BookedTimeRow& row)
{
    return ReadIsoSpan(row.startDate, row.startTime, row.endDate, row.endTime);
}

} // namespace

BookedBook::BookedBook(Database& database, Key employee, Date from)
    : database_(database), employee_(employee), readUntil_(AddDays(from, -1))
{
}

BookedBook::Day BookedBook::On(Key employee, Date date, int limit)
{
    Require(employee, date);
    Day day;
    const auto found = parts_.find({employee, date});
    if (found == parts_.end())
        return day;
    // How many begin at a minute, less those that end there.
    std::array<int, DayMinutes::Count + 1> changes{};
    for (const PartOfDay part : found->second) {
        ++changes.at(static_cast<std::size_t>(part.from));
        --changes.at(static_cast<std::size_t>(part.until));
        day.booked += part.until - part.from;
    }
    int running = 0;
    for (int minute = 0; limit > 0 && minute < DayMinutes::Count; ++minute) {
        running += changes[static_cast<std::size_t>(minute)];
        if (running >= limit)
            day.full.Free({minute, minute + 1});
    }
    return day;
}

void BookedBook::Require(Key employee, Date date)
{
    if (date <= readUntil_)
        return;
    if (date <= AddDays(readUntil_, daysAtOnce_))
        ReadUntil(AddDays(readUntil_, daysAtOnce_));
    else if (readAlone_.insert({employee, date}).second)
        ReadDaysOf(employee, date, date);
}

void BookedBook::ReadUntil(Date last)
{
    const Date first = AddDays(readUntil_, 1);
    // What was read of one of the days alone comes again with it.
    std::erase_if(
        parts_, [&](const auto& parts) { return parts.first.second >= first && parts.first.second <= last; });
    ReadDaysOf(employee_, first, last);
    readUntil_ = last;
    daysAtOnce_ = std::min(2 * daysAtOnce_, MostDaysAtOnce);
}

void BookedBook::ReadDaysOf(Key employee, Date first, Date last)
{
    if (employee == 0) {
        for (const BookedEmployeeRow& row : FindBookedDays(database_, IsoDate(first), IsoDate(last)))
            Add(row.employee, SpanOf(row.times), first, last);
    } else {
        for (const BookedTimeRow& row :
             FindBookedTimes(database_, {employee, 0, IsoDate(first), {}, IsoDate(last)}))
            Add(employee, SpanOf(row), first, last);
    }
}

void BookedBook::Add(Key employee, const TimeSpan& span, Date first, Date last)
{
    const Date end = std::min(span.end.date, last);
    for (Date date = std::max(span.start.date, first); date <= end; date = AddDays(date, 1)) {
        if (const PartOfDay part = PartOn(date, span); part.from < part.until)
            parts_[{employee, date}].push_back(part);
    }
}

} // namespace kova::family
