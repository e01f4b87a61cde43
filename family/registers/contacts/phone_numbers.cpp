#include "family/registers/contacts/phone_numbers.hpp"

#include <algorithm>
#include <array>

namespace kova::family::registers {

namespace {

constexpr std::array AreaCodes = {11, 12, 13, 14, 15, 16, 17, 18, 19, 21, 22, 24, 27, 28, 31, 32, 33,
                                  34, 35, 37, 38, 41, 42, 43, 44, 45, 46, 47, 48, 49, 51, 53, 54, 55,
                                  61, 62, 63, 64, 65, 66, 67, 68, 69, 71, 73, 74, 75, 77, 79, 81, 82,
                                  83, 84, 85, 86, 87, 88, 89, 91, 92, 93, 94, 95, 96, 97, 98, 99};

constexpr std::size_t FixedLength = 10, MobileLength = 11, LengthOfCountry = 2;
/// Of numbers of other countries.
constexpr std::size_t Shortest = 8, Longest = 15;

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

bool IsMark(char letter) { return std::string_view(" ().-/").find(letter) != std::string_view::npos; }

/// The digits of a text in which nothing but digits and their marks stands; else "".
std::string DigitsIn(std::string_view text)
{
    std::string digits;
    for (const char letter : text) {
        if (IsDigit(letter))
            digits += letter;
        else if (!IsMark(letter))
            return {};
    }
    return digits;
}

/// Numbers that are called from anywhere without an area code: "0800 123 4567".
bool IsService(const std::string& digits)
{
    static constexpr std::string_view Beginnings[] = {"0300", "0500", "0800", "0900"};
    return digits.size() == MobileLength
        && std::ranges::find(Beginnings, std::string_view(digits).substr(0, 4)) != std::end(Beginnings);
}

/// Without the country's code, and without the 0 that is dialled before an area code.
std::string WithoutPrefixes(std::string digits, bool hasPlus)
{
    const bool hasCountry =
        digits.size() == LengthOfCountry + FixedLength || digits.size() == LengthOfCountry + MobileLength;
    if (hasPlus || (hasCountry && digits.starts_with("55")))
        digits.erase(0, LengthOfCountry);
    const bool hasZero = digits.size() > FixedLength && digits[0] == '0' && digits[1] != '0';
    if (hasZero && !IsService(digits))
        digits.erase(0, 1);
    return digits;
}

std::string Shown(const std::string& digits)
{
    if (IsService(digits))
        return digits.substr(0, 4) + " " + digits.substr(4, 3) + " " + digits.substr(7);
    const std::size_t dash = digits.size() - 4;
    return "(" + digits.substr(0, 2) + ") " + digits.substr(2, dash - 2) + "-" + digits.substr(dash);
}

bool IsMobile(const std::string& digits) { return digits.size() == MobileLength && digits[2] == '9'; }

bool IsFixed(const std::string& digits)
{
    return digits.size() == FixedLength && digits[2] >= '2' && digits[2] <= '5';
}

std::string WrongForm(const std::string& typed, PhoneKind kind)
{
    switch (kind) {
    case PhoneKind::Mobile:
        return "o celular " + typed + " não tem DDD e nove dígitos a partir do 9, como (11) 91234-5678.";
    case PhoneKind::Fixed:
        return "o telefone fixo " + typed + " não tem DDD e oito dígitos, como (11) 3123-4567.";
    case PhoneKind::Any: break;
    }
    return "o telefone " + typed + " não tem DDD e oito ou nove dígitos, como (11) 3123-4567.";
}

bool HasForm(const std::string& digits, PhoneKind kind)
{
    return (kind != PhoneKind::Fixed && IsMobile(digits)) || (kind != PhoneKind::Mobile && IsFixed(digits));
}

PhoneText OfBrazil(const std::string& typed, const std::string& digits, PhoneKind kind)
{
    if (IsService(digits) && kind != PhoneKind::Mobile)
        return {Shown(digits), {}};
    if (!HasForm(digits, kind))
        return {{}, WrongForm(typed, kind)};
    const int code = (digits[0] - '0') * 10 + (digits[1] - '0');
    if (!IsAreaCode(code))
        return {{}, "o DDD " + digits.substr(0, 2) + ", de " + typed + ", não existe."};
    return {Shown(digits), {}};
}

PhoneText OfElsewhere(const std::string& typed, const std::string& digits)
{
    if (digits.size() < Shortest || digits.size() > Longest)
        return {{}, "o número internacional " + typed + " não tem de 8 a 15 dígitos."};
    return {typed, {}};
}

} // namespace

bool IsAreaCode(int code) { return std::ranges::find(AreaCodes, code) != AreaCodes.end(); }

PhoneText ReadPhone(std::string_view typed, PhoneKind kind)
{
    const std::string text(typed);
    const bool hasPlus = typed.starts_with('+');
    const std::string digits = DigitsIn(hasPlus ? typed.substr(1) : typed);
    if (hasPlus && !digits.empty() && !digits.starts_with("55"))
        return OfElsewhere(text, digits);
    return OfBrazil(text, WithoutPrefixes(digits, hasPlus && !digits.empty()), kind);
}

} // namespace kova::family::registers
