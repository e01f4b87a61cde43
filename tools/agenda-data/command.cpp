#include "tools/agenda-data/command.hpp"

#include <algorithm>
#include <charconv>
#include <limits>

namespace kova::data {

namespace {

long long ReadNumber(std::string_view what, std::string_view text, long long most)
{
    long long number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || stop != text.data() + text.size() || number < 1 || number > most)
        throw UsageError("O valor \"" + std::string(text) + "\" de " + std::string(what)
                         + " não é um número inteiro de 1 a " + std::to_string(most) + ".");
    return number;
}

const Option& FindOption(const Command& command, std::string_view name)
{
    const auto found = std::find_if(command.options.begin(), command.options.end(),
                                    [&](const Option& option) { return option.name == name; });
    if (found == command.options.end())
        throw UsageError("A opção " + std::string(name) + " não existe neste comando.");
    return *found;
}

void CheckOperands(const Command& command, const std::vector<std::string>& given)
{
    if (given.size() < command.operands.size())
        throw UsageError("Falta informar " + std::string(command.operands[given.size()]) + ".");
    if (given.size() > command.operands.size())
        throw UsageError("\"" + given[command.operands.size()] + "\" sobra na linha de comando.");
}

} // namespace

std::optional<std::string> Call::Option(std::string_view option) const
{
    const auto found = options_.find(option);
    return found == options_.end() ? std::nullopt : std::optional(found->second);
}

long long Call::Count(std::string_view option, long long otherwise, long long most) const
{
    const auto text = Option(option);
    return text ? ReadNumber(option, *text, most) : otherwise;
}

Date Call::Day(std::string_view option, Date otherwise) const
{
    const auto text = Option(option);
    if (!text)
        return otherwise;
    const auto date = ParseDate(*text);
    if (!date || date->year < 1900 || date->year > 2999)
        throw UsageError("A data \"" + *text
                         + "\" não é válida. Informe dd/mm/aaaa, de 01/01/1900 a 31/12/2999.");
    return *date;
}

long long Call::Number(std::size_t position) const
{
    return ReadNumber("número", Operand(position), std::numeric_limits<std::int32_t>::max());
}

Call ReadCall(const Command& command, std::span<const char* const> words)
{
    std::vector<std::string> operands;
    std::map<std::string, std::string, std::less<>> options;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string_view word = words[at];
        if (word.substr(0, 2) != "--") {
            operands.emplace_back(word);
            continue;
        }
        std::string value;
        if (!FindOption(command, word).value.empty()) {
            if (++at == words.size())
                throw UsageError("Falta o valor da opção " + std::string(word) + ".");
            value = words[at];
        }
        options.insert_or_assign(std::string(word), value);
    }
    CheckOperands(command, operands);
    return Call(std::move(operands), std::move(options));
}

} // namespace kova::data
