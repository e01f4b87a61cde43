#include "family/business/registers/service_types.hpp"

#include "family/business/combo_selection.hpp"
#include "family/business/selection_arguments.hpp"

namespace kova::family {

std::span<const Method<ServiceTypes>> ServiceTypes::Methods()
{
    static constexpr Method<ServiceTypes> methods[] = {
        {"SelecionarParaComboBox", 1, 1, &ServiceTypes::SelecionarParaComboBox}};
    return methods;
}

std::span<const Property<ServiceTypes>> ServiceTypes::Properties()
{
    return SelectionProperties<ServiceTypes>;
}

Value ServiceTypes::SelecionarParaComboBox(std::span<Argument> arguments)
{
    return Select("SelecionarParaComboBox", [&] {
        const Key key = KeyOf(arguments[0].Get());
        return ComboRecordSet("Nome", "Numero", SelectServiceTypes(Data(), key));
    });
}

} // namespace kova::family
