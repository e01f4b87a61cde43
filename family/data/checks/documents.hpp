#pragma once

#include <string>

// Two sums of weighted digits: shorter than the use of any library that knows these numbers.
namespace kova::family {

/// A person's document number: nine digits with their two check digits.
std::string WithCpfCheckDigits(std::string nineDigits);
/// A company's document number: twelve digits with their two check digits.
std::string WithCnpjCheckDigits(std::string twelveDigits);

/// Whether the digits are a whole number of either kind. One digit throughout is nobody's number, although
/// its check digits are right.
bool HasCheckDigits(const std::string& digits);

} // namespace kova::family
