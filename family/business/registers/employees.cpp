#include "family/business/registers/employees.hpp"

#include "family/business/combo_selection.hpp"
#include "family/business/selection_arguments.hpp"

namespace kova::family {

std::span<const Method<Employees>> Employees::Methods()
{
    static constexpr Method<Employees> methods[] = {
        {"SelecionarParaComboBox", 1, 1, &Employees::SelecionarParaComboBox}};
    return methods;
}

std::span<const Property<Employees>> Employees::Properties() { return SelectionProperties<Employees>; }

Value Employees::SelecionarParaComboBox(std::span<Argument> arguments)
{
    return Select("SelecionarParaComboBox", [&] {
        const Key key = KeyOf(arguments[0].Get());
        return ComboRecordSet("Apelido", "Codigo", SelectEmployees(Data(), key));
    });
}

} // namespace kova::family
