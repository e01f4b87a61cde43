#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_EspecRacas.clsEspecies: the species of animals.
class Species : public ByName<Species> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_EspecRacas.clsEspecies";

    explicit Species(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Species>> Methods();
    static std::span<const Property<Species>> Properties();

private:
    Value SelecionarParaComboBox(std::span<Argument> arguments);
};

} // namespace kova::family
