#include "tools/agenda-data/password.hpp"

#include "system/hidden_typing.hpp"

#include <string>

namespace kova::data {

namespace {

std::unique_ptr<family::Secret> ReadLine(const Input& input)
{
    std::string line;
    std::getline(input.stream, line);
    if (line.ends_with('\r'))
        line.pop_back();
    return std::make_unique<family::Secret>(std::move(line));
}

std::unique_ptr<family::Secret> Ask(const char* question, Surroundings& surroundings)
{
    surroundings.error << question << std::flush;
    const system::HiddenTyping hidden;
    auto typed = ReadLine(surroundings.input);
    surroundings.error << "\n";
    return typed;
}

} // namespace

std::unique_ptr<family::Secret> NewPassword(Surroundings& surroundings)
{
    auto password =
        surroundings.input.isTyped ? Ask("Senha nova: ", surroundings) : ReadLine(surroundings.input);
    if (const std::string objection = family::ObjectionToPassword(*password); !objection.empty()) {
        surroundings.error << objection << "\n";
        return nullptr;
    }
    if (surroundings.input.isTyped && Ask("A mesma, outra vez: ", surroundings)->Text() != password->Text()) {
        surroundings.error << "As duas senhas não são iguais.\n";
        return nullptr;
    }
    return password;
}

} // namespace kova::data
