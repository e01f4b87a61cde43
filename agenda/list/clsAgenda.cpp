#include "agenda/list/clsAgenda.hpp"

#include "agenda/list/frmLista.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

[[noreturn]] void FailOnMember(std::string_view member)
{
    throw Failure(FailureNumber::NoSuchMember,
                  "KOVA_A_Agenda.clsAgenda não aceita a propriedade ou método '" + Text(member) + "'.");
}

/// A dropped reference is taken as it is: the first write then says that there is no user.
ObjectRef UserIn(const Value& value)
{
    if (value.IsEmpty())
        return nullptr;
    return value.GetType() == ValueType::Object ? value.HeldObject() : value.ToObject();
}

} // namespace

Value clsAgenda::Get(std::string_view member) { FailOnMember(member); }

void clsAgenda::Set(std::string_view member, const Value& value)
{
    if (member == "DadosDoUsuario")
        Principal.DadosDoUsuario = UserIn(value);
    else if (member == "NomeDaAplicacao")
        Principal.NomeDaAplicacao = value.ToText();
    else
        FailOnMember(member);
}

Value clsAgenda::Call(std::string_view member, std::span<Argument> arguments)
{
    if (member != "AbrirLista")
        FailOnMember(member);
    if (arguments.size() != 2)
        throw Failure(FailureNumber::WrongArgumentCount);
    return AbrirLista(arguments[0].Get().ToLong(), arguments[1].Get().ToLong());
}

Value clsAgenda::AbrirLista(Long HandleDaJanelaPrincipal, Long HandleDoContainer)
{
    Integer Ponto = 0;
    Trap(", clsAgenda, AbrirLista, Ponto: ", Ponto, [&] {
        Ponto = 1;
        Principal.HandleDaJanelaPrincipal = HandleDaJanelaPrincipal;
        Principal.DataDaAgenda = FormatDate(ThePlatform().Clock().Now().date);

        Ponto = 2;
        const auto lista = frmLista::Criar();
        Principal.FormularioDaLista = lista;

        Ponto = 3;
        lista->MontarExibirFormulario(HandleDoContainer);
    });
    return {};
}

} // namespace kova::agenda
