// The search of free places, against reading the booked hours of the same days by the indexes that fit,
// through the database engine's own interface. Usage: bench_free_places DATABASE [SHOP]

#include "family/business/places/free_places.hpp"
#include "bench/measure.hpp"
#include "bench/measured_days.hpp"
#include "bench/raw_database.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/data_source.hpp"

#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

using family::FreePlace;
using family::IsoDate;
using family::PlaceWish;

constexpr int Rounds = 15;
constexpr Long TwoMonths = 61;
constexpr family::PartOfDay DaysWork{8 * 60, 18 * 60};

/// What is booked on days, by the beginning; what began before them is left out, which only helps the floor.
constexpr const char* BareStatement =
    "select codigo_do_funcionario, data_inicial, hora_inicial, data_final, hora_final from agendamento"
    " indexed by agendamento_por_inicio where data_inicial >= :de and data_inicial <= :ate"
    " and situacao <> 3";

/// A search, or several, and the days of each that nobody can answer it without.
struct Searches {
    std::vector<PlaceWish> wishes;
    std::vector<std::pair<std::string, std::string>> days;
    std::size_t places = 0;
};

/// An hour of anybody's, in the two months from a day on.
PlaceWish AnHourFrom(const std::string& day)
{
    PlaceWish wish;
    wish.minutes = 60;
    wish.from = family::ReadIsoMoment(day, "08:00");
    wish.until = AddDays(wish.from.date, TwoMonths);
    wish.part = DaysWork;
    return wish;
}

/// As many as there are: no day of the two months is left out.
PlaceWish AllHoursFrom(const std::string& day)
{
    constexpr int MoreThanThereAre = 100'000;
    PlaceWish wish = AnHourFrom(day);
    wish.count = MoreThanThereAre;
    return wish;
}

/// The same hour and employee on ten days, a week after each other.
PlaceWish SeriesFrom(const std::string& day)
{
    constexpr Long DaysOfWeek = 7, Sessions = 10;
    PlaceWish wish = AnHourFrom(day);
    for (Long session = 1; session < Sessions; ++session)
        wish.daysOfSeries.push_back(session * DaysOfWeek);
    return wish;
}

/// The days up to the last place, or all where there are too few places.
std::string LastDayOf(const PlaceWish& wish, const std::vector<FreePlace>& places)
{
    const bool isEnough = places.size() == static_cast<std::size_t>(wish.count);
    return IsoDate(isEnough ? places.back().span.start.date : wish.until);
}

Searches Prepared(family::Database& database, std::vector<PlaceWish> wishes)
{
    Searches searches{std::move(wishes), {}, 0};
    for (const PlaceWish& wish : searches.wishes) {
        const std::vector<FreePlace> places = NextFreePlaces(database, wish);
        searches.days.emplace_back(IsoDate(wish.from.date), LastDayOf(wish, places));
        if (!places.empty())
            for (const Long after : wish.daysOfSeries) {
                const std::string session = IsoDate(AddDays(places.back().span.start.date, after));
                searches.days.emplace_back(session, session);
            }
        searches.places += places.size();
    }
    return searches;
}

std::size_t Search(family::Database& database, const Searches& searches)
{
    std::size_t places = 0;
    for (const PlaceWish& wish : searches.wishes)
        places += NextFreePlaces(database, wish).size();
    return places;
}

std::size_t ReadBare(RawStatement& statement, const Searches& searches)
{
    std::size_t rows = 0, characters = 0;
    for (const auto& [from, until] : searches.days) {
        statement.Bind("de", from);
        statement.Bind("ate", until);
        for (; statement.Step(); ++rows)
            for (int column = 0; column < statement.ColumnCount(); ++column)
                characters += statement.TextAt(column).size();
        statement.Reset();
    }
    return characters == 0 ? 0 : rows;
}

std::vector<std::string> DaysOf(const RawDatabase& database)
{
    RawStatement statement(database, AllDaysStatement);
    std::vector<std::string> days;
    while (statement.Step())
        days.emplace_back(statement.TextAt(0));
    // Two months behind each of them are booked too.
    days.resize(days.size() > TwoMonths ? days.size() - TwoMonths : 0);
    return SpreadDays(days);
}

class Shop {
public:
    Shop(const std::string& path, std::string name)
        : raw_(path),
          bare_(raw_, BareStatement),
          database_(family::OpenDatabase(path)),
          days_(DaysOf(raw_)),
          name_(std::move(name))
    {
    }

    /// Times of one search each.
    Comparison Measure(const std::string& what, PlaceWish (*wishFrom)(const std::string& day), double limit)
    {
        std::vector<PlaceWish> wishes;
        for (const std::string& day : days_)
            wishes.push_back(wishFrom(day));
        const Searches searches = Prepared(*database_, std::move(wishes));
        const std::size_t rows = ReadBare(bare_, searches);
        if (rows == 0)
            throw std::runtime_error("nobody is booked");
        std::size_t sum = 0;
        Comparison comparison = Alternate(
            Rounds, [&] { sum += Search(*database_, searches); }, [&] { sum += ReadBare(bare_, searches); });
        const auto searched = static_cast<double>(searches.wishes.size());
        comparison = {comparison.measured / searched, comparison.floor / searched};
        PrintLine("(o) " + what + name_, comparison, "ms", limit);
        PrintNote("(o) " + what + name_ + ": " + std::to_string(searches.places) + " places in "
                  + std::to_string(searches.wishes.size()) + " searches, " + std::to_string(rows)
                  + " appointments on their days" + (sum == 0 ? " (none)" : ""));
        return comparison;
    }

private:
    RawDatabase raw_;
    RawStatement bare_;
    std::shared_ptr<family::Database> database_;
    std::vector<std::string> days_;
    std::string name_;
};

void Measure(const std::string& path, const std::string& name)
{
    constexpr double MostMilliseconds = 50, LimitOfNext = 6, LimitOfAll = 3, LimitOfSeries = 8;
    Shop shop(path, name);
    const double slowest =
        std::max({shop.Measure("5 next free places", AnHourFrom, LimitOfNext).measured,
                  shop.Measure("all in two months", AllHoursFrom, LimitOfAll).measured,
                  shop.Measure("5 of a series of 10", SeriesFrom, LimitOfSeries).measured});
    PrintLine("(o) the slowest, against 50 ms" + name, {slowest, MostMilliseconds}, "ms", 1);
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 2 && count != 3) {
        std::cerr << "usage: bench_free_places DATABASE [SHOP]" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1], count == 3 ? std::string(", ") + words[2] : std::string());
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_free_places: " << failure.what() << std::endl;
        return 1;
    }
}
