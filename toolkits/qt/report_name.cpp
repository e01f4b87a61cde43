#include "toolkits/qt/report_name.hpp"

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

QString FileNameOfReport(const QString& title, Date day)
{
    QString name;
    for (const QChar character : title)
        name += QStringLiteral("/\\:*?\"<>|").contains(character) ? QChar(u' ') : character;
    name = name.simplified();
    return QStringLiteral("%1 %2-%3-%4.pdf")
        .arg(name.isEmpty() ? QStringLiteral("Relatório") : name)
        .arg(day.year, 4, 10, QLatin1Char('0'))
        .arg(day.month, 2, 10, QLatin1Char('0'))
        .arg(day.day, 2, 10, QLatin1Char('0'));
}

} // namespace kova::qt
