#include "agenda/list/clsAgenda.hpp"

#include "agenda/list/frmLista.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

/// A dropped reference is taken as it is: the first write then says that there is no user.
ObjectRef UserIn(const Value& value)
{
    if (value.IsEmpty())
        return nullptr;
    return value.GetType() == ValueType::Object ? value.HeldObject() : value.ToObject();
}

} // namespace

std::span<const Method<clsAgenda>> clsAgenda::Methods()
{
    static constexpr Method<clsAgenda> methods[] = {{"AbrirLista", 2, 2, &clsAgenda::AbrirLista}};
    return methods;
}

std::span<const Property<clsAgenda>> clsAgenda::Properties()
{
    static constexpr Property<clsAgenda> properties[] = {
        {"DadosDoUsuario", nullptr, &clsAgenda::DadosDoUsuario},
        {"NomeDaAplicacao", nullptr, &clsAgenda::NomeDaAplicacao},
    };
    return properties;
}

void clsAgenda::DadosDoUsuario(const Value& value) { Principal.DadosDoUsuario = UserIn(value); }

void clsAgenda::NomeDaAplicacao(const Value& value) { Principal.NomeDaAplicacao = value.ToText(); }

Value clsAgenda::AbrirLista(std::span<Argument> arguments)
{
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
