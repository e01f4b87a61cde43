#include "family/business/registers/holidays.hpp"

#include "agenda/contracts/platform.hpp"
#include "agenda/contracts/support/memory_record_set.hpp"
#include "agenda/contracts/text.hpp"
#include "family/business/selection_arguments.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/selections/holiday_selection.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// Position of the argument of Selecionar that it looks at.
constexpr std::size_t DateText = 3;
constexpr std::size_t CountOfArguments = 4;

/// "dd/mm" of a holiday of every year, "dd/mm/yyyy" of one of a single date.
Text ShownDay(const HolidayRow& holiday)
{
    if (!holiday.data.IsNull())
        return ShownDate(holiday.data.value);
    // Any leap year has every day.
    return FormatDate({2000, holiday.mes.value, holiday.dia.value}).substr(0, 5);
}

} // namespace

std::span<const Method<Holidays>> Holidays::Methods()
{
    static constexpr Method<Holidays> methods[] = {
        {"Selecionar", CountOfArguments, CountOfArguments, &Holidays::Selecionar}};
    return methods;
}

std::span<const Property<Holidays>> Holidays::Properties()
{
    static constexpr Property<Holidays> properties[] = {
        {"ResultadoDaSelecaoEmRecordSet", &Holidays::ResultadoDaSelecaoEmRecordSet},
        {"NumeroDoErro", &Holidays::NumeroDoErro},
        {"DescricaoDoErro", &Holidays::DescricaoDoErro},
        {"LocalDoErro", &Holidays::LocalDoErro},
        {"DadosDoUsuario", nullptr, &Holidays::DadosDoUsuario},
    };
    return properties;
}

void Holidays::DadosDoUsuario(const Value& user) { RequireUserObject(user); }

Date Holidays::DateOf(const Text& text) const
{
    if (std::count(text.begin(), text.end(), '/') != 1)
        return RequireDate(text);
    Date date = RequireDate(Trim(text) + "/2000");
    date.year = Host().GetPlatform().Clock().Now().date.year;
    return date;
}

Value Holidays::Selecionar(std::span<Argument> arguments)
{
    return Select("Selecionar", [&] {
        const Date date = DateOf(arguments[DateText].Get().ToText());
        std::vector<std::vector<Value>> rows;
        for (const HolidayRow& holiday : SelectHolidays(Data(), date))
            rows.push_back({static_cast<Long>(holiday.codigo), holiday.nome, ShownDay(holiday)});
        auto selection = std::make_shared<MemoryRecordSet>(std::vector<Text>{"Codigo", "Nome", "Data"}, rows);
        selection->PageSize(RowsOfPage(arguments, selection->RecordCount()));
        return selection;
    });
}

} // namespace kova::family
