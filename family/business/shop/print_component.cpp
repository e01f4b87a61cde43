#include "family/business/shop/print_component.hpp"

#include "agenda/contracts/text.hpp"
#include "family/business/current_author.hpp"
#include "family/data/audit/audit_events.hpp"
#include "family/data/engine/safe_write.hpp"

namespace kova::family {

std::span<const Method<PrintComponent>> PrintComponent::Methods()
{
    static constexpr Method<PrintComponent> methods[] = {{"Registrar", 3, 4, &PrintComponent::Registrar}};
    return methods;
}

std::span<const Property<PrintComponent>> PrintComponent::Properties()
{
    static constexpr Property<PrintComponent> properties[] = {
        {"DadosDoUsuario", nullptr, &PrintComponent::DadosDoUsuario},
        {"NumeroDoErro", &PrintComponent::NumeroDoErro},
        {"DescricaoDoErro", &PrintComponent::DescricaoDoErro},
        {"LocalDoErro", &PrintComponent::LocalDoErro},
    };
    return properties;
}

void PrintComponent::DadosDoUsuario(const Value& user)
{
    if (user.GetType() != ValueType::Object)
        throw Failure(FailureNumber::TypeMismatch);
    user_ = user.HeldObject();
}

Value PrintComponent::Registrar(std::span<Argument> arguments)
{
    return Attempt("Registrar", [&] {
        const Author author = CurrentAuthor(user_, Host().GetPlatform().Clock());
        AuditValues what;
        what.Add("documento", std::string(arguments[0].Get().ToText()))
            .Add("paginas", arguments[1].Get().ToLong());
        if (const Text file = arguments[2].Get().ToText(); !file.empty())
            what.Add("arquivo", std::string(file));
        const Key customer = arguments.size() < 4 ? 0 : static_cast<Key>(Val(arguments[3].Get().ToText()));
        WriteSafely(Data(), [&] {
            AuditPrint(Data(), author, customer, what);
            return true;
        });
    });
}

} // namespace kova::family
