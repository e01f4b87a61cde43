#include "family/business/shown_values.hpp"

namespace kova::family {

std::string ShownSex(std::string_view sex)
{
    if (sex == "M")
        return "Macho";
    if (sex == "F")
        return "Fêmea";
    return std::string(sex);
}

std::string ShownSize(int size)
{
    switch (size) {
    case 1: return "Pequeno";
    case 2: return "Médio";
    case 3: return "Grande";
    case 4: return "Gigante";
    default: return "";
    }
}

std::string YesOrNo(bool yes) { return yes ? "Sim" : "Não"; }

} // namespace kova::family
