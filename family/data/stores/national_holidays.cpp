#include "family/data/stores/national_holidays.hpp"

#include "family/data/engine/iso_text.hpp"

namespace kova::family {

namespace {

struct FixedHoliday {
    const char* name;
    int day, month;
};
constexpr FixedHoliday FixedHolidays[] = {
    {"Confraternização Universal", 1, 1},
    {"Tiradentes", 21, 4},
    {"Dia do Trabalho", 1, 5},
    {"Independência do Brasil", 7, 9},
    {"Nossa Senhora Aparecida", 12, 10},
    {"Finados", 2, 11},
    {"Proclamação da República", 15, 11},
    {"Dia da Consciência Negra", 20, 11},
    {"Natal", 25, 12},
};

struct MovableHoliday {
    const char* name;
    int daysFromEaster;
};
constexpr MovableHoliday GoodFriday = {"Sexta-feira Santa", -2};
constexpr MovableHoliday OfShops[] = {{"Carnaval", -48}, {"Carnaval", -47}, {"Corpus Christi", 60}};
constexpr int DaysFromAshWednesdayToEaster = 46;

HolidayRow InYear(int year, const MovableHoliday& movable)
{
    return {0, movable.name, {}, {}, IsoDate(AddDays(EasterSunday(year), movable.daysFromEaster))};
}

} // namespace

Date EasterSunday(int year)
{
    const int century = year / 100;
    const int leapCorrection = century / 4;
    const int moonCorrection = (century - (century + 8) / 25 + 1) / 3;
    const int goldenNumber = year % 19;
    const int epact = (19 * goldenNumber + century - leapCorrection - moonCorrection + 15) % 30;
    const int weekday = (32 + 2 * (century % 4) + 2 * (year % 100 / 4) - epact - year % 100 % 4) % 7;
    const int shift = (goldenNumber + 11 * epact + 22 * weekday) / 451;
    const int day = epact + weekday - 7 * shift + 114;
    return {year, day / 31, day % 31 + 1};
}

std::vector<HolidayRow> NationalHolidays(int firstYear, int lastYear)
{
    std::vector<HolidayRow> holidays;
    const auto add = [&](HolidayRow holiday) {
        holiday.codigo = static_cast<Key>(holidays.size()) + 1;
        holidays.push_back(std::move(holiday));
    };
    for (const FixedHoliday& fixed : FixedHolidays)
        add({0, fixed.name, fixed.day, fixed.month, {}});
    for (int year = firstYear; year <= lastYear; ++year)
        add(InYear(year, GoodFriday));
    return holidays;
}

std::vector<HolidayRow> UsualDaysOff(int year)
{
    std::vector<HolidayRow> days;
    for (const MovableHoliday& movable : OfShops)
        days.push_back(InYear(year, movable));
    return days;
}

Date AshWednesday(int year) { return AddDays(EasterSunday(year), -DaysFromAshWednesdayToEaster); }

} // namespace kova::family
