#include "family/waiting/who_fits.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/stores/work_tables.hpp"
#include "family/waiting/waiting_checks.hpp"
#include "family/waiting/waiting_writes.hpp"

#include <algorithm>
#include <map>
#include <optional>

namespace kova::family::waiting {

namespace {

constexpr int Active = 1;

class Fitting {
public:
    Fitting(Database& database, const FreedPlace& freed, DateTime now)
        : database_(database), freed_(freed), now_(now)
    {
    }

    std::optional<WaitingFit> Of(const WaitingEntry& entry)
    {
        const bool wouldDo = entry.employees.empty() || entry.employees.contains(freed_.employee);
        if (!wouldDo || IsInHand(entry.row, IsoMoment(now_)))
            return std::nullopt;
        for (Date date = freed_.span.start.date; date <= freed_.span.end.date; date = AddDays(date, 1)) {
            const PartOfDay part = PartOn(date, freed_.span);
            if (part.from == part.until || !WouldDoOn(entry.row, date))
                continue;
            if (std::optional<WaitingFit> fit = On(date, part, entry))
                return CanStillCome(database_, entry.row) ? fit : std::nullopt;
        }
        return std::nullopt;
    }

private:
    static bool WouldDoOn(const WaitingRow& row, Date date)
    {
        const std::string day = IsoDate(date);
        return day >= row.dataInicial && day <= row.dataFinal
            && row.diasDaSemana.find(static_cast<char>('0' + Weekday(date))) != std::string::npos;
    }

    std::optional<WaitingFit> On(Date date, PartOfDay part, const WaitingEntry& entry)
    {
        for (const Key service : entry.services) {
            const int minutes = MinutesOfService(service);
            if (minutes == 0)
                continue;
            const PartOfDay hours{MinutesOf(entry.row.horaInicial), MinutesOf(entry.row.horaFinal)};
            // Such that what is found takes some of what was freed.
            const PartOfDay behind{std::max(part.from, hours.from),
                                   std::min(part.until + minutes - 1, hours.until)},
                before{std::max(part.from - minutes + 1, hours.from),
                       std::min(part.from + minutes - 1, hours.until)};
            std::optional<FreePlace> place = First(date, behind, minutes);
            if (!place && First(date, before, minutes))
                place = Last(date, before, minutes);
            if (place)
                return WaitingFit{entry, service, *place};
        }
        return std::nullopt;
    }

    std::optional<FreePlace> First(Date date, PartOfDay part, int minutes)
    {
        const std::vector<FreePlace> places = Places(date, part, minutes);
        return places.empty() ? std::nullopt : std::optional(places.front());
    }

    /// The one that ends last: looked for from the end, since the others do not lie side by side.
    std::optional<FreePlace> Last(Date date, PartOfDay part, int minutes)
    {
        for (int from = part.until - minutes; from >= part.from; --from) {
            if (from % Step != 0)
                continue;
            if (const auto place = First(date, {from, from + minutes}, minutes))
                return place;
        }
        return std::nullopt;
    }

    std::vector<FreePlace> Places(Date date, PartOfDay part, int minutes)
    {
        PlaceWish wish;
        wish.employee = freed_.employee;
        wish.minutes = minutes;
        wish.from = std::max(DateTime{date, {}}, now_);
        wish.until = date;
        wish.part = part;
        wish.step = Step;
        wish.count = 1;
        return NextFreePlaces(database_, wish);
    }

    /// 0 of one that cannot be booked.
    int MinutesOfService(Key code)
    {
        const auto known = minutes_.find(code);
        if (known != minutes_.end())
            return known->second;
        const auto service = FindByKey<ServiceRow>(database_, code);
        return minutes_[code] =
                   service && service->situacao == Active ? std::max(service->duracaoEmMinutos, 1) : 0;
    }

    static constexpr int Step = 5;

    Database& database_;
    const FreedPlace& freed_;
    const DateTime now_;
    std::map<Key, int> minutes_;
};

} // namespace

std::vector<WaitingFit> WhoFits(Database& database, const FreedPlace& freed, DateTime now)
{
    Fitting fitting(database, freed, now);
    std::vector<WaitingFit> fits;
    for (const WaitingEntry& entry : FindOpenWaiting(database, IsoDate(freed.span.start.date))) {
        if (std::optional<WaitingFit> fit = fitting.Of(entry))
            fits.push_back(std::move(*fit));
    }
    return fits;
}

} // namespace kova::family::waiting
