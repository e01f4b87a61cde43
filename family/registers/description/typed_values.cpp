#include "family/registers/description/typed_values.hpp"

#include "agenda/contracts/text.hpp"
#include "family/data/checks/documents.hpp"
#include "family/data/engine/fold_text.hpp"

#include <algorithm>
#include <charconv>

namespace kova::family::registers {

namespace {

bool AreDigits(std::string_view text)
{
    return !text.empty()
        && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// "1.234.567" without its points; nothing where they do not stand between groups of three digits.
std::optional<std::string> WithoutThousands(std::string_view text)
{
    std::string digits(text.substr(0, text.find('.')));
    if (!AreDigits(digits) || (digits.size() > 3 && digits.size() < text.size()))
        return std::nullopt;
    for (std::size_t at = digits.size(); at < text.size(); at += 4) {
        const std::string_view group = text.substr(at + 1, 3);
        if (text[at] != '.' || group.size() < 3 || !AreDigits(group))
            return std::nullopt;
        digits += group;
    }
    return digits;
}

bool IsWithinLimits(Date date) { return date.year >= 1900 && date.year <= 2999; }

} // namespace

std::optional<long long> ReadWhole(std::string_view text)
{
    long long number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (!AreDigits(text) || error != std::errc())
        return std::nullopt;
    return number;
}

std::optional<long long> ReadMoney(std::string_view text)
{
    if (text.substr(0, 2) == "R$")
        text.remove_prefix(2);
    const std::string amount = Trim(text);
    const std::size_t comma = amount.find(',');
    const auto whole = WithoutThousands(std::string_view(amount).substr(0, comma));
    std::string cents = comma == std::string::npos ? "00" : amount.substr(comma + 1);
    if (!whole || !AreDigits(cents) || cents.size() > 2)
        return std::nullopt;
    cents.resize(2, '0');
    return ReadWhole(*whole + cents);
}

std::optional<bool> ReadYesNo(std::string_view text)
{
    const std::string folded = FoldText(text);
    if (folded == "sim" || folded == "s" || folded == "1")
        return true;
    if (folded == "nao" || folded == "n" || folded == "0")
        return false;
    return std::nullopt;
}

std::optional<Date> ReadDate(std::string_view text)
{
    const auto date = ParseDate(text);
    return date && IsWithinLimits(*date) ? date : std::nullopt;
}

std::optional<DateTime> ReadMoment(std::string_view text)
{
    const auto moment = ParseDateTime(text);
    return moment && text.find(' ') != std::string_view::npos && IsWithinLimits(moment->date) ? moment
                                                                                              : std::nullopt;
}

std::optional<std::string> ReadDocument(std::string_view text)
{
    std::string document = DocumentOf(text);
    return HasCheckDigits(document) ? std::optional(document) : std::nullopt;
}

std::optional<std::string> ReadPostalCode(std::string_view text)
{
    std::string digits = DigitsOf(text);
    return digits.size() == 8 ? std::optional(digits) : std::nullopt;
}

} // namespace kova::family::registers
