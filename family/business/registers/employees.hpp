#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_Funcionarios.clsFuncionarios: the employees.
class Employees : public ByName<Employees> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_Funcionarios.clsFuncionarios";

    explicit Employees(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Employees>> Methods();
    static std::span<const Property<Employees>> Properties();

private:
    Value SelecionarParaComboBox(std::span<Argument> arguments);
};

} // namespace kova::family
