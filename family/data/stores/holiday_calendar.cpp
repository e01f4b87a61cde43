#include "family/data/stores/holiday_calendar.hpp"

#include "family/data/engine/change_count.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/rows.hpp"

#include <cstdio>

namespace kova::family {

namespace {

std::string DateOf(const HolidayRow& row)
{
    if (!row.data.IsNull())
        return row.data.value;
    char text[32];
    std::snprintf(text, sizeof text, "%02d-%02d", row.mes.value, row.dia.value);
    return text;
}

class HolidaysInMemory : public KeptStatement {
public:
    explicit HolidaysInMemory(Database& database)
        : changes_(database, {HolidayCalendar::Table}),
          readHolidays_(
              (database.Session().prepare << "select nome, dia, mes, data from feriado order by codigo",
               soci::into(row_.nome), soci::into(row_.dia.value, row_.dia.state),
               soci::into(row_.mes.value, row_.mes.state), soci::into(row_.data.value, row_.data.state)))
    {
    }

    /// `changes` is how often they were changed, read before; nothing where that is to be asked.
    std::shared_ptr<const HolidayCalendar::Names> After(std::optional<long long> changes)
    {
        changes_.ReadAgain(changes, [this] { names_ = Read(); });
        return names_;
    }

private:
    std::shared_ptr<const HolidayCalendar::Names> Read()
    {
        auto names = std::make_shared<HolidayCalendar::Names>();
        readHolidays_.execute();
        while (readHolidays_.fetch())
            names->try_emplace(DateOf(row_), row_.nome);
        return names;
    }

    std::shared_ptr<const HolidayCalendar::Names> names_;
    ChangeCount changes_;
    HolidayRow row_;
    soci::statement readHolidays_;
};

} // namespace

std::optional<std::string> HolidayCalendar::On(Date date)
{
    if (!names_)
        names_ =
            database_.With<HolidaysInMemory>([this](HolidaysInMemory& kept) { return kept.After(changes_); });
    const std::string iso = IsoDate(date);
    for (const std::string_view key : {std::string_view(iso), std::string_view(iso).substr(5)}) {
        if (const auto found = names_->find(key); found != names_->end())
            return found->second;
    }
    return std::nullopt;
}

} // namespace kova::family
