#include "family/business/registers/breeds.hpp"

#include "family/business/combo_selection.hpp"
#include "family/business/selection_arguments.hpp"

namespace kova::family {

std::span<const Method<Breeds>> Breeds::Methods()
{
    static constexpr Method<Breeds> methods[] = {
        {"SelecionarParaComboBox", 2, 2, &Breeds::SelecionarParaComboBox}};
    return methods;
}

std::span<const Property<Breeds>> Breeds::Properties() { return SelectionProperties<Breeds>; }

Value Breeds::SelecionarParaComboBox(std::span<Argument> arguments)
{
    return Select("SelecionarParaComboBox", [&] {
        const Key species = KeyOf(arguments[0].Get());
        return ComboRecordSet("Nome", "Codigo", SelectBreeds(Data(), species, KeyOf(arguments[1].Get())));
    });
}

} // namespace kova::family
