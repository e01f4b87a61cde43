#include "family/business/places/free_places.hpp"

#include "family/business/places/booked_book.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/stores/holiday_calendar.hpp"

#include <algorithm>
#include <memory>
#include <optional>
#include <tuple>
#include <utility>

namespace kova::family {

namespace {

constexpr Key Everybody = 0;
constexpr int Active = 1;

struct Candidate {
    Key code = 0;
    std::string nickname, folded;
    int limit = 0;
};

/// The active employees who come into question, by nickname and code.
std::vector<Candidate> CandidatesFor(Database& database, const PlaceWish& wish)
{
    std::vector<Candidate> candidates;
    SelectRows<EmployeeRow>(database, [&](const EmployeeRow& row) {
        if (row.situacao == Active && (wish.employee == Everybody || wish.employee == row.codigo))
            candidates.push_back(
                {row.codigo, row.apelido, FoldText(row.apelido), row.agendamentosSimultaneos});
    });
    std::ranges::sort(candidates, {}, [](const Candidate& one) { return std::tie(one.folded, one.code); });
    return candidates;
}

void RequireValid(const PlaceWish& wish)
{
    const auto isPartOfADay = [](int minutes) { return minutes >= 1 && minutes <= DayMinutes::Count; };
    if (!isPartOfADay(wish.minutes) || !isPartOfADay(wish.step) || wish.count < 1)
        throw Failure(FailureNumber::InvalidArgument);
}

int RoundedUp(int minute, int step) { return (minute + step - 1) / step * step; }

/// The minutes of the day that have begun by then.
int MinutesBegunBy(TimeOfDay time) { return 60 * time.hour + time.minute + (time.second > 0 ? 1 : 0); }

DateTime MomentOf(Date date, int minute)
{
    return minute == DayMinutes::Count ? DateTime{AddDays(date, 1), {}}
                                       : DateTime{date, {minute / 60, minute % 60, 0}};
}

/// One search: what it knows of the shop, and where it has got to.
class Search {
public:
    Search(Database& database, const PlaceWish& wish)
        : wish_(wish),
          candidates_(CandidatesFor(database, wish)),
          tables_(FindWorkTables(database, std::nullopt)),
          holidays_(database),
          booked_(database, wish.employee, wish.from.date)
    {
    }

    std::vector<FreePlace> Places()
    {
        for (Date date = wish_.from.date; date <= wish_.until && !IsEnough(); date = AddDays(date, 1)) {
            if (!candidates_.empty() && IsWorked(date))
                LookThrough(date);
        }
        return std::move(places_);
    }

private:
    struct EmployeeDay {
        DayMinutes free;
        int booked = 0;
    };

    bool IsEnough() const { return places_.size() >= static_cast<std::size_t>(wish_.count); }

    bool IsWorked(Date date) { return tables_->shop.HasAnyOn(Weekday(date)) && !holidays_.On(date); }

    void LookThrough(Date date)
    {
        std::vector<EmployeeDay> days;
        for (const Candidate& candidate : candidates_)
            days.push_back(DayOf(candidate, date));
        const int begun = date == wish_.from.date ? MinutesBegunBy(wish_.from.time) : 0;
        int minute = RoundedUp(std::max(begun, wish_.part.from), wish_.step);
        const int last = std::min(wish_.part.until, DayMinutes::Count) - wish_.minutes;
        while (minute <= last && !IsEnough()) {
            const Candidate* const best = BestAt(date, minute, days);
            if (best)
                places_.push_back({best->code,
                                   best->nickname,
                                   {MomentOf(date, minute), MomentOf(date, minute + wish_.minutes)}});
            minute = RoundedUp(minute + (best ? wish_.minutes : 1), wish_.step);
        }
    }

    const Candidate* BestAt(Date date, int minute, const std::vector<EmployeeDay>& days)
    {
        std::optional<std::size_t> best;
        for (std::size_t at = 0; at < days.size(); ++at) {
            const bool better = !best || days[at].booked < days[*best].booked;
            if (better && days[at].free.AreFree(minute, wish_.minutes)
                && HasRoomForSeries(candidates_[at], date, minute))
                best = at;
        }
        return best ? &candidates_[*best] : nullptr;
    }

    bool HasRoomForSeries(const Candidate& candidate, Date date, int minute)
    {
        return std::ranges::all_of(wish_.daysOfSeries, [&](Long days) {
            const Date session = AddDays(date, days);
            return IsWorked(session) && DayOf(candidate, session).free.AreFree(minute, wish_.minutes);
        });
    }

    EmployeeDay DayOf(const Candidate& candidate, Date date)
    {
        EmployeeDay day;
        const BookedBook::Day booked = booked_.On(candidate.code, date, candidate.limit);
        FreeHours(tables_->shop, date, day.free);
        if (const auto own = tables_->employees.find(candidate.code); own != tables_->employees.end()) {
            DayMinutes hours;
            FreeHours(own->second, date, hours);
            day.free.KeepThoseOf(hours);
        }
        TakeAbsences(candidate.code, date, day.free);
        TakeAbsences(Everybody, date, day.free);
        day.free.TakeThoseOf(booked.full);
        day.booked = booked.booked;
        return day;
    }

    static void FreeHours(const WeeklyHours& hours, Date date, DayMinutes& minutes)
    {
        for (const PartOfDay part : hours.On(Weekday(date)))
            minutes.Free(part);
    }

    void TakeAbsences(Key employee, Date date, DayMinutes& minutes) const
    {
        const auto absences = tables_->absences.find(employee);
        if (absences == tables_->absences.end())
            return;
        for (const Absence& absence : absences->second)
            minutes.Take(PartOn(date, {absence.from, absence.until}));
    }

    PlaceWish wish_;
    std::vector<Candidate> candidates_;
    std::shared_ptr<const WorkTables> tables_;
    HolidayCalendar holidays_;
    BookedBook booked_;
    std::vector<FreePlace> places_;
};

} // namespace

std::vector<FreePlace> NextFreePlaces(Database& database, const PlaceWish& wish)
{
    RequireValid(wish);
    return Search(database, wish).Places();
}

} // namespace kova::family
