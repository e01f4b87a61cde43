#pragma once

#include <string>
#include <string_view>

namespace kova::family {

/// "Macho" of "M", "Fêmea" of "F"; any other text as it stands.
std::string ShownSex(std::string_view sex);
/// "Pequeno" to "Gigante" of 1 to 4, else "".
std::string ShownSize(int size);
/// "Sim" or "Não".
std::string YesOrNo(bool yes);

} // namespace kova::family
