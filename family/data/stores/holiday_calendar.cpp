#include "family/data/stores/holiday_calendar.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/rows.hpp"

#include <cstdio>

namespace kova::family {

namespace {

class HolidaySelection : public KeptStatement {
public:
    explicit HolidaySelection(Database& database)
        : statement_((database.Session().prepare
                          << "select nome, dia, mes, data from feriado"
                             " where data is null or substr(data, 1, 4) = :ano order by codigo",
                      soci::into(row_.nome), soci::into(row_.dia.value, row_.dia.state),
                      soci::into(row_.mes.value, row_.mes.state),
                      soci::into(row_.data.value, row_.data.state), soci::use(year_, "ano")))
    {
    }

    template <class Take> void Run(const std::string& year, Take take)
    {
        year_ = year;
        statement_.execute();
        while (statement_.fetch())
            take(row_);
    }

private:
    /// "yyyy"
    std::string year_;
    HolidayRow row_;
    soci::statement statement_;
};

std::string DateOf(const HolidayRow& row)
{
    if (!row.data.IsNull())
        return row.data.value;
    char text[32];
    std::snprintf(text, sizeof text, "%02d-%02d", row.mes.value, row.dia.value);
    return text;
}

} // namespace

void HolidayCalendar::Read(int year)
{
    database_.With<HolidaySelection>([&](HolidaySelection& selection) {
        selection.Run(IsoDate({year, 1, 1}).substr(0, 4),
                      [this](const HolidayRow& row) { names_.try_emplace(DateOf(row), row.nome); });
    });
}

std::optional<std::string> HolidayCalendar::On(Date date)
{
    if (years_.insert(date.year).second)
        Read(date.year);
    const std::string iso = IsoDate(date);
    for (const std::string_view key : {std::string_view(iso), std::string_view(iso).substr(5)}) {
        if (const auto found = names_.find(key); found != names_.end())
            return found->second;
    }
    return std::nullopt;
}

} // namespace kova::family
