#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_EspecRacas.clsRacas: the breeds of a species.
class Breeds : public ByName<Breeds> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_EspecRacas.clsRacas";

    explicit Breeds(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Breeds>> Methods();
    static std::span<const Property<Breeds>> Properties();

private:
    Value SelecionarParaComboBox(std::span<Argument> arguments);
};

} // namespace kova::family
