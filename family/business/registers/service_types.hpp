#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_TipoDeServ.clsTiposDeServ: the service types.
class ServiceTypes : public ByName<ServiceTypes> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_TipoDeServ.clsTiposDeServ";

    explicit ServiceTypes(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<ServiceTypes>> Methods();
    static std::span<const Property<ServiceTypes>> Properties();

private:
    Value SelecionarParaComboBox(std::span<Argument> arguments);
};

} // namespace kova::family
