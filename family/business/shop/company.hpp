#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_Empresa.clsEmpresa: the company that runs the shop.
class Company : public ByName<Company> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_Empresa.clsEmpresa";

    explicit Company(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Company>> Methods();
    static std::span<const Property<Company>> Properties();

private:
    Value SelecionarNova(std::span<Argument> arguments);
};

} // namespace kova::family
