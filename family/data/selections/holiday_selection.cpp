#include "family/data/selections/holiday_selection.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/iso_text.hpp"

#include <algorithm>

namespace kova::family {

namespace {

class HolidaysOfDate : public KeptStatement {
public:
    explicit HolidaysOfDate(Database& database)
        : statement_((database.Session().prepare
                          << "select codigo, nome, dia, mes, data from feriado"
                             " where (dia = :dia and mes = :mes) or data = :data order by codigo",
                      soci::use(day_, "dia"), soci::use(month_, "mes"), soci::use(date_, "data"),
                      soci::into(row_.codigo), soci::into(row_.nome),
                      soci::into(row_.dia.value, row_.dia.state), soci::into(row_.mes.value, row_.mes.state),
                      soci::into(row_.data.value, row_.data.state)))
    {
    }

    std::vector<HolidayRow> Run(Date date)
    {
        day_ = date.day;
        month_ = date.month;
        date_ = IsoDate(date);
        std::vector<HolidayRow> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

private:
    int day_ = 0, month_ = 0;
    std::string date_;
    HolidayRow row_;
    soci::statement statement_;
};

} // namespace

std::vector<HolidayRow> SelectHolidays(Database& database, Date date)
{
    std::vector<HolidayRow> rows =
        database.With<HolidaysOfDate>([&](HolidaysOfDate& selection) { return selection.Run(date); });
    std::stable_sort(rows.begin(), rows.end(), [](const HolidayRow& a, const HolidayRow& b) {
        return FoldText(a.nome) < FoldText(b.nome);
    });
    return rows;
}

} // namespace kova::family
