#include "family/demo/documents.hpp"

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

} // namespace kova::family
