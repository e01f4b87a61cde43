#pragma once

#include <string>

// Two sums of weighted places: shorter than the use of any library that knows these numbers.
namespace kova::family {

/// A person's document number: nine digits with their two check digits.
std::string WithCpfCheckDigits(std::string nineDigits);
/// A company's document number: twelve digits or capital letters with their two check digits.
std::string WithCnpjCheckDigits(std::string twelvePlaces);

/// Whether a document without punctuation is a whole number of either kind. One digit throughout is nobody's
/// number, although its check digits are right.
bool HasCheckDigits(const std::string& document);

/// Whether such a document is a company's, by its length.
bool IsCompanyDocument(const std::string& document);

/// "123.456.789-09", "12.ABC.345/01DE-35"; a text of another length as it stands.
std::string ShownDocument(const std::string& document);

} // namespace kova::family
