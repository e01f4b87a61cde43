#include "agenda/contracts/text.hpp"

#include "agenda/contracts/utf8.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace kova {

std::size_t Length(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += utf8::SequenceLength(text, at))
        ++count;
    return count;
}

Text Left(std::string_view text, std::size_t count)
{
    std::size_t at = 0;
    for (; at < text.size() && count > 0; --count)
        at += utf8::SequenceLength(text, at);
    return Text(text.substr(0, at));
}

Text Right(std::string_view text, std::size_t count)
{
    const std::size_t length = Length(text);
    if (length <= count)
        return Text(text);
    std::size_t at = 0;
    for (std::size_t skipped = length - count; skipped > 0; --skipped)
        at += utf8::SequenceLength(text, at);
    return Text(text.substr(at));
}

Text Trim(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return Text(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

namespace {

Text MapCharacters(std::string_view text, char32_t (*map)(char32_t))
{
    Text mapped;
    mapped.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8::SequenceLength(text, at);
        const auto byte = static_cast<unsigned char>(text[at]);
        if (length == 1 && byte >= 0x80)
            mapped += text[at];
        else
            utf8::Append(mapped, map(utf8::Decode(text, at, length)));
        at += length;
    }
    return mapped;
}

} // namespace

Text UpperCase(std::string_view text) { return MapCharacters(text, utf8::ToUpper); }
Text LowerCase(std::string_view text) { return MapCharacters(text, utf8::ToLower); }

Text Replace(std::string_view text, std::string_view what, std::string_view with)
{
    if (what.empty())
        return Text(text);
    Text result;
    std::size_t begin = 0;
    for (auto hit = text.find(what); hit != std::string_view::npos; hit = text.find(what, begin)) {
        result.append(text, begin, hit - begin).append(with);
        begin = hit + what.size();
    }
    return result.append(text, begin);
}

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t SkipDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

/// Where the exponent that may begin at `at` ends; `at` itself where none does.
std::size_t SkipExponent(std::string_view text, std::size_t at)
{
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E'))
        return at;
    std::size_t digits = at + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-'))
        ++digits;
    const std::size_t end = SkipDigits(text, digits);
    return end == digits ? at : end;
}

/// Length of the number at the beginning of a text without sign; 0 where there is none.
std::size_t NumberLength(std::string_view text)
{
    std::size_t at = SkipDigits(text, 0);
    std::size_t digits = at;
    if (at < text.size() && text[at] == '.') {
        const std::size_t end = SkipDigits(text, at + 1);
        digits += end - at - 1;
        at = end;
    }
    return digits == 0 ? 0 : SkipExponent(text, at);
}

/// Reads a number that NumberLength has measured. The reading does not depend on the locale, which
/// the host's toolkit may have set to one with a decimal comma.
Double ReadNumber(std::string_view number)
{
    Double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    const auto exponent = number.find_first_of("eE");
    const bool tooSmall = exponent == std::string_view::npos
        ? number.find_first_not_of('0') == number.find('.')
        : number[exponent + 1] == '-';
    if (!tooSmall)
        throw Failure(FailureNumber::Overflow);
    return 0;
}

Text WithoutWhiteSpace(std::string_view text)
{
    Text kept;
    for (const char c : text)
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            kept += c;
    return kept;
}

bool TakeSign(std::string_view& text)
{
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
        return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

} // namespace

Double Val(std::string_view text)
{
    const Text compact = WithoutWhiteSpace(text);
    std::string_view rest = compact;
    const bool negative = TakeSign(rest);
    const Double magnitude = ReadNumber(rest.substr(0, NumberLength(rest)));
    return negative && magnitude != 0 ? -magnitude : magnitude;
}

bool IsNumeric(std::string_view text)
{
    const Text pointed = Replace(Trim(text), ",", ".");
    std::string_view rest = pointed;
    TakeSign(rest);
    return !rest.empty() && NumberLength(rest) == rest.size();
}

Text TextOf(Double number, char mark)
{
    if (number == 0)
        return "0";
    constexpr Double firstWithExponent = 1e15;
    // The longest text is that of the smallest magnitude without exponent.
    std::array<char, 400> buffer;
    const bool plain = std::fabs(number) < firstWithExponent;
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format);
    Text text(buffer.data(), result.ptr);
    for (char& c : text) {
        if (c == '.')
            c = mark;
        else if (c == 'e' && !plain && std::isfinite(number))
            c = 'E';
    }
    return text;
}

namespace {

template <class Whole> Whole RoundTo(Double number)
{
    // The rounding mode of every process is the default one: halves to even.
    const Double whole = std::nearbyint(number);
    if (!(whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max()))
        throw Failure(FailureNumber::Overflow);
    return static_cast<Whole>(whole);
}

} // namespace

Integer RoundToInteger(Double number) { return RoundTo<Integer>(number); }
Long RoundToLong(Double number) { return RoundTo<Long>(number); }
Integer Checked(Long number) { return RoundTo<Integer>(number); }

} // namespace kova
