#include "reports/codes.hpp"

#include <array>
#include <cstdio>
#include <optional>

namespace kova::reports {

namespace {

Text DateInWords(const Date& date)
{
    constexpr std::array weekdays{"domingo",      "segunda-feira", "terça-feira", "quarta-feira",
                                  "quinta-feira", "sexta-feira",   "sábado"};
    constexpr std::array months{"janeiro", "fevereiro", "março",    "abril",   "maio",     "junho",
                                "julho",   "agosto",    "setembro", "outubro", "novembro", "dezembro"};
    return Text(weekdays[static_cast<std::size_t>(Weekday(date) - 1)]) + ", " + std::to_string(date.day)
        + " de " + months[static_cast<std::size_t>(date.month - 1)] + " de " + std::to_string(date.year);
}

Text TimeWithSeconds(const TimeOfDay& time)
{
    std::array<char, 16> seconds{};
    std::snprintf(seconds.data(), seconds.size(), ":%02d", time.second);
    return FormatTime(time) + seconds.data();
}

std::optional<Text> Meaning(char code, const Occasion& occasion)
{
    switch (code) {
    case 'd': return FormatDate(occasion.moment.date);
    case 'D': return DateInWords(occasion.moment.date);
    case 't': return FormatTime(occasion.moment.time);
    case 'T': return TimeWithSeconds(occasion.moment.time);
    case 'p': return std::to_string(occasion.page);
    case 'P': return std::to_string(occasion.pages);
    case 'i': return occasion.title;
    default: return std::nullopt;
    }
}

} // namespace

Text FillIn(std::string_view caption, const Occasion& occasion)
{
    Text filled;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        const bool mayBegin = caption[at] == '%' && at + 1 < caption.size();
        const auto meaning = mayBegin ? Meaning(caption[at + 1], occasion) : std::nullopt;
        if (meaning) {
            filled += *meaning;
            ++at;
        } else {
            filled += caption[at];
        }
    }
    return filled;
}

} // namespace kova::reports
