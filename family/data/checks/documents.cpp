#include "family/data/checks/documents.hpp"

namespace kova::family {

namespace {

/// The weights count from 2 at the last digit upwards and begin again after `highest`.
char CheckDigit(const std::string& digits, int highest)
{
    int sum = 0;
    int weight = 2;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        sum += (*digit - '0') * weight;
        weight = weight == highest ? 2 : weight + 1;
    }
    const int rest = sum % 11;
    return static_cast<char>('0' + (rest < 2 ? 0 : 11 - rest));
}

std::string WithCheckDigits(std::string digits, int highest)
{
    digits += CheckDigit(digits, highest);
    digits += CheckDigit(digits, highest);
    return digits;
}

} // namespace

std::string WithCpfCheckDigits(std::string nineDigits) { return WithCheckDigits(std::move(nineDigits), 11); }

std::string WithCnpjCheckDigits(std::string twelveDigits)
{
    return WithCheckDigits(std::move(twelveDigits), 9);
}

bool HasCheckDigits(const std::string& digits)
{
    if (digits.find_first_not_of(digits.substr(0, 1)) == std::string::npos)
        return false;
    if (digits.size() == 11)
        return WithCpfCheckDigits(digits.substr(0, 9)) == digits;
    return digits.size() == 14 && WithCnpjCheckDigits(digits.substr(0, 12)) == digits;
}

} // namespace kova::family
