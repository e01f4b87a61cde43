#include "family/business/shop/system_version.hpp"

#include "system/system_name.hpp"

namespace kova::family {

std::span<const Method<SystemVersion>> SystemVersion::Methods()
{
    static constexpr Method<SystemVersion> methods[] = {
        {"ObterversaoDoSO", 0, 0, &SystemVersion::ObterversaoDoSO}};
    return methods;
}

std::span<const Property<SystemVersion>> SystemVersion::Properties() { return {}; }

Value SystemVersion::ObterversaoDoSO(std::span<Argument>) { return system::SystemName(); }

} // namespace kova::family
