#include "family/registers/contacts/postal_codes.hpp"

#include <algorithm>

namespace kova::family::registers {

namespace {

/// The first five digits of the last postal code of a range; it begins behind the one before it.
struct Range {
    std::string_view last, state;
};
constexpr Range Ranges[] = {
    {"00999", ""},   {"19999", "SP"}, {"28999", "RJ"}, {"29999", "ES"}, {"39999", "MG"}, {"48999", "BA"},
    {"49999", "SE"}, {"56999", "PE"}, {"57999", "AL"}, {"58999", "PB"}, {"59999", "RN"}, {"63999", "CE"},
    {"64999", "PI"}, {"65999", "MA"}, {"68899", "PA"}, {"68999", "AP"}, {"69299", "AM"}, {"69399", "RR"},
    {"69899", "AM"}, {"69999", "AC"}, {"72799", "DF"}, {"72999", "GO"}, {"73699", "DF"}, {"76799", "GO"},
    {"76999", "RO"}, {"77999", "TO"}, {"78899", "MT"}, {"78999", "RO"}, {"79999", "MS"}, {"87999", "PR"},
    {"89999", "SC"}, {"99999", "RS"},
};

} // namespace

std::string_view StateOfPostalCode(std::string_view digits)
{
    const auto range = std::ranges::lower_bound(Ranges, digits.substr(0, 5), {}, &Range::last);
    return range == std::end(Ranges) ? std::string_view() : range->state;
}

} // namespace kova::family::registers
