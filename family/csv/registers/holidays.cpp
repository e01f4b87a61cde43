#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/shop/shop_columns.hpp"

namespace kova::family::csv {

namespace {

using family::HolidayRow;
using family::registers::HolidayColumns;
using family::registers::WriteDay;
namespace column = family::registers::shop_columns;

class HolidayImport : public ImportOf<HolidayRow> {
public:
    HolidayImport(family::Database& database, DateTime) : ImportOf(database, HolidayColumns())
    {
        family::SelectRows<HolidayRow>(
            database, [&](const HolidayRow& row) { days_.AddStored(DayAndName(row), row.codigo); });
    }

private:
    void LookUp(std::span<const HolidayRow>) override { }

    /// A day is the same holiday with whatever code; CheckRecord sees to it.
    std::vector<std::string> TraitsOf(const HolidayRow&) const override { return {}; }

    static std::string DayAndName(const HolidayRow& row)
    {
        return WriteDay(row) + " " + family::FoldText(row.nome);
    }

    /// Different holidays can fall on one day.
    void CheckRecord(HolidayRow& row, Line& line) override
    {
        if (row.data.IsNull() && row.dia.IsNull())
            return;
        const auto place = days_.Add(DayAndName(row), line.Number());
        if (place && !LeavesOut(*place, line))
            line.Refuse(column::Day, WriteDay(row), "este feriado " + place->Told() + ".");
    }

    void WriteRecord(HolidayRow& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }

    Occurrences<std::string> days_;
};

} // namespace

const Register HolidayRegister{
    "feriados",
    StartImport<HolidayImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, HolidayColumns(), sink); },
    HolidayRow::Table,
};

} // namespace kova::family::csv
