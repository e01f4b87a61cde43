#pragma once

#include <string>

namespace kova::family {

/// A person's document number: nine digits with their two check digits.
std::string WithCpfCheckDigits(std::string nineDigits);
/// A company's document number: twelve digits with their two check digits.
std::string WithCnpjCheckDigits(std::string twelveDigits);

} // namespace kova::family
