#include "family/business/registers/species.hpp"

#include "family/business/combo_selection.hpp"
#include "family/business/selection_arguments.hpp"

namespace kova::family {

std::span<const Method<Species>> Species::Methods()
{
    static constexpr Method<Species> methods[] = {
        {"SelecionarParaComboBox", 1, 1, &Species::SelecionarParaComboBox}};
    return methods;
}

std::span<const Property<Species>> Species::Properties() { return SelectionProperties<Species>; }

Value Species::SelecionarParaComboBox(std::span<Argument> arguments)
{
    return Select("SelecionarParaComboBox", [&] {
        return ComboRecordSet("Nome", "Codigo", SelectSpecies(Data(), KeyOf(arguments[0].Get())));
    });
}

} // namespace kova::family
