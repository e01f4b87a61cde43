#include "host/arguments/call.hpp"

#include <charconv>
#include <cstdint>
#include <limits>

namespace kova::arguments {

namespace {

long long ReadNumber(const Call& call, std::string_view what, std::string_view text, long long most)
{
    long long number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || stop != text.data() + text.size() || number < 1 || number > most)
        call.Refuse("O valor \"" + std::string(text) + "\" de " + std::string(what)
                    + " não é um número inteiro de 1 a " + std::to_string(most) + ".");
    return number;
}

} // namespace

void Call::AddOption(std::string_view option, std::string value)
{
    options_.insert_or_assign(std::string(option), std::move(value));
}

long long Call::Number(std::size_t position) const
{
    return ReadNumber(*this, "número", Operand(position), std::numeric_limits<std::int32_t>::max());
}

std::optional<std::string> Call::Option(std::string_view option) const
{
    const auto found = options_.find(option);
    return found == options_.end() ? std::nullopt : std::optional(found->second);
}

long long Call::Count(std::string_view option, long long otherwise, long long most) const
{
    const auto text = Option(option);
    return text ? ReadNumber(*this, option, *text, most) : otherwise;
}

std::optional<Date> Call::Day(std::string_view option) const
{
    const auto text = Option(option);
    if (!text)
        return std::nullopt;
    const auto date = ParseDate(*text);
    if (!date || date->year < 1900 || date->year > 2999)
        Refuse("A data \"" + *text + "\" de " + std::string(option)
               + " não é válida. Informe dd/mm/aaaa, de 01/01/1900 a 31/12/2999.");
    return date;
}

void Call::Refuse(const std::string& reason) const
{
    throw BadArguments(reason + " Use " + name_ + " --help para ver as opções.");
}

} // namespace kova::arguments
