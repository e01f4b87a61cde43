#include "tools/agenda-data/csv/import_of.hpp"

#include <cstdio>

namespace kova::data {

namespace {

using family::HolidayRow;
using Cols = ColumnsOf<HolidayRow>;

constexpr const char* DateColumn = "Data";
constexpr int SomeLeapYear = 2000;

std::string WriteDay(const HolidayRow& holiday)
{
    if (!holiday.data.IsNull())
        return family::ShownDate(holiday.data.value);
    char text[32];
    std::snprintf(text, sizeof text, "%02d/%02d", holiday.dia.ValueOr(0), holiday.mes.ValueOr(0));
    return text;
}

/// Without a year it is a holiday of every year.
std::string ReadDay(const std::string& cell, HolidayRow& holiday)
{
    if (const auto date = ReadDate(cell)) {
        holiday.data = family::IsoDate(*date);
        return {};
    }
    const auto everyYear = ReadDate(cell + "/" + std::to_string(SomeLeapYear));
    if (!everyYear)
        return "não é uma data válida. Escreva dd/mm, para todos os anos, ou dd/mm/aaaa.";
    holiday.dia = everyYear->day;
    holiday.mes = everyYear->month;
    return {};
}

const Columns<HolidayRow>& HolidayColumns()
{
    static const Columns<HolidayRow> columns = {
        Cols::Code("Código", &HolidayRow::codigo),
        Required(Cols::Text("Nome", &HolidayRow::nome, 100)),
        {DateColumn, ReadDay, WriteDay, true},
    };
    return columns;
}

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
        if (const auto place = days_.Add(DayAndName(row), line.Number()))
            line.Refuse(DateColumn, WriteDay(row), "este feriado " + place->Told() + ".");
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

} // namespace kova::data
