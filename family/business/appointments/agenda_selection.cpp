#include "agenda/contracts/support/memory_record_set.hpp"
#include "family/business/appointments/agenda.hpp"
#include "family/business/appointments/day_record_set.hpp"
#include "family/business/lent_record_sets.hpp"
#include "family/business/selection_arguments.hpp"
#include "family/data/engine/iso_text.hpp"

namespace kova::family {

namespace {

/// Positions of the arguments of Selecionar.
enum Position { Mode, PageRows, Status, SearchText, Day, ServiceType, Employee, Transport };

std::string IsoDay(const Value& day)
{
    const Text text = day.ToText();
    const auto date = ParseDate(text);
    if (!date)
        throw Failure(static_cast<std::int32_t>(FailureNumber::TypeMismatch),
                      "A data da lista não é válida: \"" + text + "\".");
    return IsoDate(*date);
}

DayFilter FilterOf(std::span<const Argument> arguments)
{
    DayFilter filter;
    filter.date = IsoDay(arguments[Day].Get());
    filter.status = arguments[Status].Get().ToLong();
    filter.serviceType = arguments[ServiceType].Get().ToLong();
    filter.employee = arguments[Employee].Get().ToLong();
    filter.transport = arguments[Transport].Get().ToLong();
    filter.text = arguments[SearchText].Get().ToText();
    return filter;
}

RowVersions::Selection VersionsOf(const DayRows& day)
{
    RowVersions::Selection versions;
    versions.reserve(day.rows.size());
    for (const DayRow& row : day.rows)
        versions.emplace_back(row.numeroDeLancamento, row.versao);
    return versions;
}

} // namespace

Value Agenda::Selecionar(std::span<Argument> arguments)
{
    return Select("Selecionar", [&] {
        DayRows day = SelectDay(Data(), FilterOf(arguments));
        shown_ = Data().Versions().Keep(VersionsOf(day));
        auto selection = DayRecordSet(std::move(day));
        selection->PageSize(RowsOfPage(arguments, selection->RecordCount()));
        return selection;
    });
}

Value Agenda::PaginarResultadoDaSelecaoEmRecordset(std::span<Argument> arguments)
{
    if (!Result())
        throw Failure(FailureNumber::NoObject);
    arguments[1].Assign(Lend(CopyPage(*Result(), arguments[0].Get().ToLong())));
    return {};
}

} // namespace kova::family
