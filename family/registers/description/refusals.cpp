#include "family/registers/description/refusals.hpp"

#include <algorithm>

namespace kova::family::registers {

bool Refusals::Has(std::size_t field) const
{
    return std::ranges::find(refused_, field, &RefusedField::field) != refused_.end();
}

void Refusals::Add(std::size_t field, std::string why)
{
    if (!Has(field))
        refused_.push_back({field, std::move(why)});
}

std::vector<RefusedField> Refusals::InOrder() const
{
    std::vector<RefusedField> refused = refused_;
    std::ranges::sort(refused, {}, &RefusedField::field);
    return refused;
}

} // namespace kova::family::registers
