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

std::string ShownStatus(int status)
{
    switch (status) {
    case 1: return "Agendado";
    case 2: return "Atendido";
    case 3: return "Cancelado";
    case 4: return "Atendido e gerado pré-venda";
    default: return "";
    }
}

std::string ShownWaitingStatus(int status)
{
    switch (status) {
    case 1: return "Esperando";
    case 2: return "Sendo marcado";
    case 3: return "Marcado";
    case 4: return "Desistiu";
    default: return "";
    }
}

std::string ShownWeekdays(std::string_view digits)
{
    constexpr std::string_view Names[] = {"dom", "seg", "ter", "qua", "qui", "sex", "sáb"};
    if (digits == "1234567")
        return "todos";
    std::string shown;
    for (const char digit : digits) {
        if (digit >= '1' && digit <= '7')
            shown.append(shown.empty() ? "" : ", ").append(Names[digit - '1']);
    }
    return shown;
}

std::string YesOrNo(bool yes) { return yes ? "Sim" : "Não"; }

std::string ShownMoney(long long cents)
{
    const bool negative = cents < 0;
    std::string digits = std::to_string(negative ? -cents : cents);
    if (digits.size() < 3)
        digits.insert(0, 3 - digits.size(), '0');
    const std::size_t decimals = digits.size() - 2;
    digits.insert(decimals, 1, ',');
    for (std::size_t mark = decimals; mark > 3; mark -= 3)
        digits.insert(mark - 3, 1, '.');
    return negative ? "-" + digits : digits;
}

} // namespace kova::family
