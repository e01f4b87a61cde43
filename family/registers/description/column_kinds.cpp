#include "family/registers/description/column_kinds.hpp"

#include "agenda/contracts/text.hpp"

#include <algorithm>

namespace kova::family::registers {

std::string CheckWidth(const std::string& text, std::size_t width)
{
    if (const std::size_t length = Length(text); length > width)
        return "tem " + std::to_string(length) + " caracteres; cabem " + std::to_string(width) + ".";
    return {};
}

int ReadChoice(const std::string& word, Choices choices, std::string& why)
{
    const std::string folded = FoldText(word);
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [&](const Choice& choice) { return FoldText(choice.word) == folded; });
    if (found != choices.end())
        return found->value;
    why = "não é conhecido. Use ";
    for (const Choice& choice : choices) {
        const bool isLast = &choice == &choices.back();
        why.append(&choice == &choices.front() ? "" : isLast ? " ou " : ", ").append(choice.word);
    }
    why += ".";
    return 0;
}

std::string WriteChoice(int value, Choices choices)
{
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [&](const Choice& choice) { return choice.value == value; });
    return found == choices.end() ? std::to_string(value) : std::string(found->word);
}

long long ReadNumber(const std::string& cell, long long least, long long most, std::string& why)
{
    const std::optional<long long> number = ReadWhole(cell);
    if (number && *number >= least && *number <= most)
        return *number;
    why = "não é um número inteiro de " + std::to_string(least) + " a " + std::to_string(most) + ".";
    return 0;
}

} // namespace kova::family::registers
