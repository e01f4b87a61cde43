#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_SO.clsObterVersaoDoSO: the name of the operating system.
class SystemVersion : public ByName<SystemVersion> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_SO.clsObterVersaoDoSO";

    explicit SystemVersion(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<SystemVersion>> Methods();
    static std::span<const Property<SystemVersion>> Properties();

private:
    Value ObterversaoDoSO(std::span<Argument> arguments);
};

} // namespace kova::family
