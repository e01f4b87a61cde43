#include "toolkits/qt/report/report_day.hpp"

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/failure.hpp"

#include <optional>

namespace kova::qt {

namespace {

constexpr std::size_t LengthOfDate = 10;

/// A date that is all of the text, or a word at its end: "20/11/2026", "09:00 20/11/2026".
std::optional<Date> DateIn(const Value& value)
{
    if (value.GetType() != ValueType::Text)
        return std::nullopt;
    const Text text = value.ToText();
    if (text.size() < LengthOfDate)
        return std::nullopt;
    const std::size_t begin = text.size() - LengthOfDate;
    return begin == 0 || text[begin - 1] == ' ' ? ParseDate(text.substr(begin)) : std::nullopt;
}

} // namespace

Date DayOfReport(RecordSet* records, Date today)
{
    try {
        if (!records || records->RecordCount() == 0)
            return today;
        records->MoveFirst();
        for (int field = 0; field < records->FieldCount(); ++field)
            if (const auto date = DateIn(records->Field(field)))
                return *date;
    } catch (const Failure&) {
        // What cannot be read is told when it is laid out.
    }
    return today;
}

} // namespace kova::qt
