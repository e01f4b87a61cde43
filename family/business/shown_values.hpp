#pragma once

#include <string>
#include <string_view>

namespace kova::family {

/// "Macho" of "M", "Fêmea" of "F"; any other text as it stands.
std::string ShownSex(std::string_view sex);
/// "Pequeno" to "Gigante" of 1 to 4, else "".
std::string ShownSize(int size);
/// "Agendado" to "Atendido e gerado pré-venda" of 1 to 4, else "".
std::string ShownStatus(int status);
/// "Esperando", "Sendo marcado", "Marcado", "Desistiu" of 1 to 4, else "".
std::string ShownWaitingStatus(int status);
/// "seg, qua" of "24", a digit for each day from 1 Sunday to 7 Saturday; "todos" of all seven.
std::string ShownWeekdays(std::string_view digits);
/// "Sim" or "Não".
std::string YesOrNo(bool yes);

/// An amount of cents as money: "45,00", "1.234,50", "-0,05".
std::string ShownMoney(long long cents);

} // namespace kova::family
