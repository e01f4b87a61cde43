#include "family/business/appointments/typed_times.hpp"

#include "agenda/contracts/text.hpp"

namespace kova::family {

namespace {

constexpr Date FirstDate{1900, 1, 1};
constexpr Date LastDate{2999, 12, 31};

const WriteAnswer InvalidStartDate =
    WriteAnswer::InvalidField("DataInicial", "Informe uma data inicial válida.");
const WriteAnswer InvalidStartTime =
    WriteAnswer::InvalidField("HoraInicial", "Informe uma hora inicial válida.");
const WriteAnswer InvalidEndDate = WriteAnswer::InvalidField("DataFinal", "Informe uma data final válida.");
const WriteAnswer InvalidEndTime = WriteAnswer::InvalidField("HoraFinal", "Informe uma hora final válida.");
const WriteAnswer EndNotAfterStart =
    WriteAnswer::InvalidField("HoraFinal", "O término deve ser posterior ao início.");

bool IsWithinLimits(Date date) { return date >= FirstDate && date <= LastDate; }

bool ReadDate(const Text& typed, Date& date)
{
    const std::optional<Date> read = ParseDate(Trim(typed));
    date = read.value_or(Date());
    return IsWithinLimits(date);
}

/// Hours and minutes only; a program that hands over a time of its own has no seconds in it either, and tells
/// so.
bool ReadTime(const Text& typed, TimeOfDay& time)
{
    const std::optional<TimeOfDay> read = ParseTime(Trim(typed));
    time = read.value_or(TimeOfDay());
    return read && read->second == 0;
}

bool HasContent(const TypedTimes& row)
{
    for (const Text* text : {&row.startDate, &row.startTime, &row.endDate, &row.endTime}) {
        if (!Trim(*text).empty())
            return true;
    }
    return false;
}

} // namespace

Refusal TypedTimes::ReadInto(TimeSpan& span) const
{
    if (!ReadDate(startDate, span.start.date))
        return InvalidStartDate;
    if (!ReadTime(startTime, span.start.time))
        return InvalidStartTime;
    if (!ReadDate(endDate, span.end.date))
        return InvalidEndDate;
    if (!ReadTime(endTime, span.end.time))
        return InvalidEndTime;
    if (mayRunPastMidnight && span.end.date == span.start.date && span.end < span.start)
        span.end.date = AddDays(span.end.date, 1);
    if (span.end <= span.start)
        return EndNotAfterStart;
    return CheckLimits(span);
}

std::vector<TypedTimes> PickedTimes(const ArrayRef& table)
{
    std::vector<TypedTimes> rows;
    for (Long row = 0; table && row <= table->UpperBound(2); ++row) {
        const auto text = [&](Long column) { return table->At(column, row).ToText(); };
        const TypedTimes typed{text(0), text(1), text(2), text(3), true};
        if (HasContent(typed))
            rows.push_back(typed);
    }
    return rows;
}

Refusal CheckLimits(const TimeSpan& span)
{
    if (!IsWithinLimits(span.start.date))
        return InvalidStartDate;
    if (!IsWithinLimits(span.end.date))
        return InvalidEndDate;
    return std::nullopt;
}

Refusal Naming(Refusal refusal, const Text& date)
{
    if (refusal)
        refusal->text += " (" + date + ")";
    return refusal;
}

} // namespace kova::family
