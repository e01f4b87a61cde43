// Free places, against a search that asks the rules of a booking about every place there could be.

#include "tests/unit/family/business/places/places_fixture.hpp"

#include "family/business/appointments/employee_room.hpp"
#include "family/business/places/free_places.hpp"
#include "family/data/stores/booked_times.hpp"
#include "family/data/stores/holiday_calendar.hpp"

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace kova::family::test {

namespace {

constexpr Date LastDay{2031, 3, 30};

/// "yyyy-mm-dd hh:mm NICKNAME", as a test reads well.
std::vector<std::string> Told(const std::vector<FreePlace>& places)
{
    std::vector<std::string> told;
    for (const FreePlace& place : places)
        told.push_back(IsoDate(place.span.start.date) + " " + FormatTime(place.span.start.time) + "-"
                       + FormatTime(place.span.end.time) + " " + place.nickname);
    return told;
}

} // namespace

class FreePlaces : public PlacesTest {
protected:
    static PlaceWish Wish(Key employee, int minutes, int count = 3)
    {
        PlaceWish wish;
        wish.employee = employee;
        wish.minutes = minutes;
        wish.from = {FirstDay, {}};
        wish.until = LastDay;
        wish.count = count;
        return wish;
    }

    std::vector<std::string> Find(const PlaceWish& wish) { return Told(NextFreePlaces(Data(), wish)); }
};

using List = std::vector<std::string>;

TEST_F(FreePlaces, LieWithinTheOpeningHoursWithoutTheBreak)
{
    Open(2, "08:00", "09:10");
    Open(2, "13:00", "14:00");
    EXPECT_EQ(Find(Wish(Bia, 30, 5)),
              (List{"2031-03-03 08:00-08:30 Bia", "2031-03-03 08:30-09:00 Bia", "2031-03-03 13:00-13:30 Bia",
                    "2031-03-03 13:30-14:00 Bia", "2031-03-10 08:00-08:30 Bia"}));
}

TEST_F(FreePlaces, BeginAtTheMomentThatIsAskedForOrLater)
{
    OpenOnWorkdays("08:00", "18:00");
    PlaceWish wish = Wish(Bia, 60, 1);
    wish.from = {FirstDay, {9, 15, 0}};
    EXPECT_EQ(Find(wish), List{"2031-03-03 09:15-10:15 Bia"});
    wish.from.time.second = 1;
    EXPECT_EQ(Find(wish), List{"2031-03-03 09:30-10:30 Bia"}) << "that quarter has begun";
    wish.step = 60;
    EXPECT_EQ(Find(wish), List{"2031-03-03 10:00-11:00 Bia"});
}

TEST_F(FreePlaces, LieAsAWholeInThePartOfTheDay)
{
    OpenOnWorkdays("08:00", "18:00");
    PlaceWish wish = Wish(Bia, 90, 3);
    wish.part = {13 * 60, 15 * 60};
    EXPECT_EQ(
        Find(wish),
        (List{"2031-03-03 13:00-14:30 Bia", "2031-03-04 13:00-14:30 Bia", "2031-03-05 13:00-14:30 Bia"}));
    wish.until = FirstDay;
    EXPECT_EQ(Find(wish), List{"2031-03-03 13:00-14:30 Bia"});
    wish.part = {13 * 60, 14 * 60};
    EXPECT_EQ(Find(wish), List{});
}

TEST_F(FreePlaces, AreWithWhoeverHasTheFewestBookedMinutesOfTheDay)
{
    OpenOnWorkdays("08:00", "10:00");
    EXPECT_EQ(Find(Wish(Everybody, 60, 1)), List{"2031-03-03 08:00-09:00 Bia"}) << "by nickname";
    Book(Bia, FirstDay, "09:00", FirstDay, "09:30");
    EXPECT_EQ(Find(Wish(Everybody, 60, 2)),
              (List{"2031-03-03 08:00-09:00 Zeca", "2031-03-03 09:00-10:00 Zeca"}));
    Run("update funcionario set situacao = 2 where codigo = 1");
    EXPECT_EQ(Find(Wish(Everybody, 60, 2)),
              (List{"2031-03-03 08:00-09:00 Bia", "2031-03-04 08:00-09:00 Bia"}));
    EXPECT_EQ(Find(Wish(Zeca, 60, 2)), List{});
}

TEST_F(FreePlaces, EndWithTheDay)
{
    Open(2, "22:00", "24:00");
    EXPECT_EQ(Find(Wish(Bia, 60, 2)), (List{"2031-03-03 22:00-23:00 Bia", "2031-03-03 23:00-00:00 Bia"}));
}

TEST_F(FreePlaces, OfASeriesAreFreeOnAllOfItsDays)
{
    OpenOnWorkdays("08:00", "10:00");
    PlaceWish wish = Wish(Bia, 60, 2);
    wish.daysOfSeries = {7, 14, 371};
    Book(Bia, AddDays(FirstDay, 14), "08:30", AddDays(FirstDay, 14), "09:00");
    Rest(AddDays(FirstDay, 8));
    Book(Bia, AddDays(FirstDay, 2 + 371), "07:00", AddDays(FirstDay, 2 + 371), "08:30");
    EXPECT_EQ(Find(wish), (List{"2031-03-03 09:00-10:00 Bia", "2031-03-05 08:30-09:30 Bia"}));
}

TEST_F(FreePlaces, AreNotThereWhereTheShopIsNeverOpen) { EXPECT_EQ(Find(Wish(Everybody, 30)), List{}); }

TEST_F(FreePlaces, AreNotLookedForWithoutALength)
{
    for (const int minutes : {0, -30, 24 * 60 + 1})
        EXPECT_THROW(Find(Wish(Bia, minutes)), Failure) << minutes;
    PlaceWish wish = Wish(Bia, 30, 0);
    EXPECT_THROW(Find(wish), Failure);
    wish = Wish(Bia, 30);
    wish.step = 0;
    EXPECT_THROW(Find(wish), Failure);
}

/// Shops made at random, and the search that asks about everything.
class FreePlacesOfAnyShop : public FreePlaces, public testing::WithParamInterface<unsigned> {
protected:
    FreePlacesOfAnyShop() : chance_(GetParam()) { }

    int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(chance_); }
    bool Once(int times) { return UpTo(times - 1) == 0; }
    Date SomeDay() { return AddDays(FirstDay, UpTo(34)); }
    static std::string Time(int minute)
    {
        return (minute < 600 ? "0" : "") + std::to_string(minute / 60) + (minute % 60 < 10 ? ":0" : ":")
            + std::to_string(minute % 60);
    }

    template <class Add> void AddParts(Add add)
    {
        for (int from = 60 * UpTo(9); from < 22 * 60 && !Once(3);) {
            const int until = from + 30 + 30 * UpTo(10);
            add(Time(from), Time(std::min(until, 24 * 60)));
            from = until + 15 * UpTo(6);
        }
    }

    void MakeShop()
    {
        for (int weekday = 1; weekday <= 7; ++weekday) {
            AddParts([&](const auto& from, const auto& until) { Open(weekday, from, until); });
            if (Once(2))
                AddParts([&](const auto& from, const auto& until) { Works(Zeca, weekday, from, until); });
        }
        for (const Key employee : {Zeca, Bia})
            Limit(employee, UpTo(3));
        for (int number = UpTo(3); number > 0; --number)
            Rest(SomeDay());
        for (int number = UpTo(4); number > 0; --number) {
            const Date from = SomeDay();
            Away(UpTo(2), from, Time(30 * UpTo(30)), AddDays(from, UpTo(2)), Time(60 * 16 + 30 * UpTo(16)));
        }
        for (int number = 40 + UpTo(120); number > 0; --number) {
            const Date from = SomeDay();
            const int start = 5 * UpTo(270);
            const bool severalDays = Once(12);
            Book(1 + UpTo(1), from, Time(start), severalDays ? AddDays(from, 1 + UpTo(2)) : from,
                 Time(severalDays ? 5 * UpTo(200) : start + 5 + 5 * UpTo(15)), 1 + UpTo(3));
        }
    }

    bool IsFree(Key employee, const TimeSpan& span)
    {
        const BookingRegisters found = FindBookingRegisters(Data(), {.employee = employee});
        EmployeeRoom room(Data(), *found.employee, 0, span.start.date, span.end.date);
        return room.Work().IsOpenOn(span.start.date) && !HolidayCalendar(Data()).On(span.start.date)
            && room.ObjectionTo(span).empty();
    }

    int BookedMinutes(Key employee, Date date)
    {
        int minutes = 0;
        const TimeSpan day{{date, {}}, {AddDays(date, 1), {}}};
        for (const BookedTimeRow& row :
             FindBookedTimes(Data(), {employee, 0, IsoDate(date), "", IsoDate(date)})) {
            const TimeSpan span = ReadIsoSpan(row.startDate, row.startTime, row.endDate, row.endTime);
            for (DateTime moment = day.start; moment < day.end; moment = AddMinutes(moment, 1))
                minutes += span.Contains(moment) ? 1 : 0;
        }
        return minutes;
    }

    std::vector<FreePlace> AllAsked(const PlaceWish& wish)
    {
        std::vector<FreePlace> places;
        DateTime moment = {wish.from.date, {}};
        while (moment.date <= wish.until && places.size() < static_cast<std::size_t>(wish.count)) {
            const std::optional<FreePlace> place = PlaceAt(moment, wish);
            if (place)
                places.push_back(*place);
            moment = place ? FirstStepFrom(place->span.end, wish.step) : AddMinutes(moment, wish.step);
        }
        return places;
    }

    static DateTime FirstStepFrom(DateTime moment, int step)
    {
        while ((60 * moment.time.hour + moment.time.minute) % step != 0)
            moment = AddMinutes(moment, 1);
        return moment;
    }

    std::optional<FreePlace> PlaceAt(DateTime start, const PlaceWish& wish)
    {
        const TimeSpan span{start, AddMinutes(start, wish.minutes)};
        const int minute = 60 * start.time.hour + start.time.minute;
        if (start < wish.from || minute < wish.part.from || minute + wish.minutes > wish.part.until)
            return std::nullopt;
        std::optional<FreePlace> best;
        for (const Key employee : {Bia, Zeca}) {
            if (wish.employee != Everybody && wish.employee != employee)
                continue;
            bool free = IsFree(employee, span);
            for (const Long days : wish.daysOfSeries)
                free = free && IsFree(employee, ShiftedByDays(span, days));
            if (free
                && (!best || BookedMinutes(employee, start.date) < BookedMinutes(best->employee, start.date)))
                best = FreePlace{employee, employee == Bia ? "Bia" : "Zeca", span};
        }
        return best;
    }

    PlaceWish SomeWish()
    {
        PlaceWish wish = Wish(UpTo(2), 10 + 5 * UpTo(40), 1 + UpTo(11));
        wish.from = {SomeDay(), {UpTo(23), UpTo(59), 0}};
        wish.until = AddDays(wish.from.date, UpTo(14));
        wish.step = std::vector{15, 20, 30, 60}[static_cast<std::size_t>(UpTo(3))];
        if (Once(2))
            wish.part = {60 * UpTo(12), 60 * (13 + UpTo(11))};
        if (Once(3))
            wish.daysOfSeries = {7, 14};
        return wish;
    }

private:
    std::mt19937 chance_;
};

TEST_P(FreePlacesOfAnyShop, AreThoseThatABookingWouldFindFree)
{
    MakeShop();
    std::size_t found = 0;
    for (int number = 0; number < 6; ++number) {
        const PlaceWish wish = SomeWish();
        const std::vector<FreePlace> places = NextFreePlaces(Data(), wish);
        EXPECT_EQ(Told(places), Told(AllAsked(wish)))
            << "employee " << wish.employee << ", " << wish.minutes << " minutes from "
            << IsoMoment(wish.from) << " until " << IsoDate(wish.until) << ", every " << wish.step;
        found += places.size();
    }
    EXPECT_GT(found, 0U) << "a shop with no room proves little";
}

INSTANTIATE_TEST_SUITE_P(Seeds, FreePlacesOfAnyShop, testing::Range(1U, 13U));

} // namespace kova::family::test
