#include "family/data/checks/documents.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr std::size_t PlacesOfPerson = 11, PlacesOfCompany = 14, CheckDigits = 2;

bool IsDigit(char place) { return place >= '0' && place <= '9'; }
bool IsDigitOrCapital(char place) { return IsDigit(place) || (place >= 'A' && place <= 'Z'); }

/// The weights count from 2 at the last place upwards and begin again after `highest`. A letter counts by its
/// distance from the digit 0 in the table of characters: A is 17.
char CheckDigit(const std::string& places, int highest)
{
    int sum = 0;
    int weight = 2;
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        sum += (*place - '0') * weight;
        weight = weight == highest ? 2 : weight + 1;
    }
    const int rest = sum % 11;
    return static_cast<char>('0' + (rest < 2 ? 0 : 11 - rest));
}

std::string WithCheckDigits(std::string places, int highest)
{
    places += CheckDigit(places, highest);
    places += CheckDigit(places, highest);
    return places;
}

} // namespace

std::string WithCpfCheckDigits(std::string nineDigits) { return WithCheckDigits(std::move(nineDigits), 11); }

std::string WithCnpjCheckDigits(std::string twelvePlaces)
{
    return WithCheckDigits(std::move(twelvePlaces), 9);
}

bool HasCheckDigits(const std::string& document)
{
    if (document.find_first_not_of(document.substr(0, 1)) == std::string::npos)
        return false;
    if (document.size() == PlacesOfPerson)
        return std::ranges::all_of(document, IsDigit)
            && WithCpfCheckDigits(document.substr(0, PlacesOfPerson - CheckDigits)) == document;
    return document.size() == PlacesOfCompany && std::ranges::all_of(document, IsDigitOrCapital)
        && WithCnpjCheckDigits(document.substr(0, PlacesOfCompany - CheckDigits)) == document;
}

bool IsCompanyDocument(const std::string& document) { return document.size() == PlacesOfCompany; }

std::string ShownDocument(const std::string& document)
{
    const auto part = [&](std::size_t at, std::size_t count) { return document.substr(at, count); };
    if (document.size() == PlacesOfPerson)
        return part(0, 3) + "." + part(3, 3) + "." + part(6, 3) + "-" + part(9, 2);
    if (document.size() == PlacesOfCompany)
        return part(0, 2) + "." + part(2, 3) + "." + part(5, 3) + "/" + part(8, 4) + "-" + part(12, 2);
    return document;
}

} // namespace kova::family
