#include "tests/unit/component/windows/vault.hpp"

namespace kova::component::test {

namespace {

const ServedLibrary served(Library);

} // namespace

std::span<const Method<Vault>> Vault::Methods()
{
    static constexpr Method<Vault> methods[] = {
        {"Devolver", 1, 1, &Vault::Same},    {"Contar", 0, 3, &Vault::Counted},
        {"Escrever", 2, 2, &Vault::Written}, {"Preencher", 1, 1, &Vault::Filled},
        {"Falhar", 2, 2, &Vault::Failed},
    };
    return methods;
}

std::span<const Property<Vault>> Vault::Properties()
{
    static constexpr Property<Vault> properties[] = {
        {"Conteúdo", &Vault::Held, &Vault::Held},
        {"Moeda", &Vault::Currency},
        {"Senha", nullptr, &Vault::Secret},
    };
    return properties;
}

Value Vault::Written(std::span<Argument> arguments)
{
    arguments[0].Assign(arguments[1].Get());
    return {};
}

Value Vault::Filled(std::span<Argument> arguments)
{
    arguments[0].Get().ToArray()->At(0, 0) = Long{7};
    return {};
}

Value Vault::Failed(std::span<Argument> arguments)
{
    throw Failure(arguments[0].Get().ToLong(), arguments[1].Get().ToText());
}

ComponentLibrary& Library()
{
    static ComponentLibrary library({{std::string(Vault::ClassName), "{5B0E7E52-6B0C-4E0B-9E57-0C6A2C3D4E01}",
                                      [](ServerHost&) { return std::make_unique<Vault>(); }}});
    return library;
}

} // namespace kova::component::test
