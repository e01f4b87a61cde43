#include "family/csv/import_of_rows.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using registers::HolidayColumns;
using registers::WriteDay;
namespace column = registers::shop_columns;

class HolidayImport : public ImportOfRows<HolidayRow> {
public:
    HolidayImport(Database& database, DateTime) : ImportOfRows(database, HolidayColumns())
    {
        SelectRows<HolidayRow>(database,
                               [&](const HolidayRow& row) { days_.AddStored(DayAndName(row), row.codigo); });
    }

private:
    static std::string DayAndName(const HolidayRow& row) { return WriteDay(row) + " " + FoldText(row.nome); }

    /// Different holidays can fall on one day.
    void CheckRecord(HolidayRow& row, Line& line) override
    {
        if (row.data.IsNull() && row.dia.IsNull())
            return;
        const auto place = days_.Add(DayAndName(row), line.Number());
        if (place && !LeavesOut(*place, line))
            line.Refuse(column::Day, WriteDay(row), "este feriado " + place->Told() + ".");
    }

    Occurrences<std::string> days_;
};

} // namespace

constinit const Register HolidayRegister = RegisterOfRows<HolidayImport, HolidayColumns>("feriados");

} // namespace kova::family::csv
