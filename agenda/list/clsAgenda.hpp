#pragma once

#include "agenda/contracts/support/member_tables.hpp"

namespace kova::agenda {

/// The module's one public class. A shell sets DadosDoUsuario and NomeDaAplicacao and then calls
/// AbrirLista, which returns while the list lives on inside the shell's window.
///
/// DadosDoUsuario takes an object, NomeDaAplicacao a text; both are write-only. AbrirLista takes
/// HandleDaJanelaPrincipal and HandleDoContainer, two Longs.
class clsAgenda : public ByTables<clsAgenda> {
public:
    static constexpr std::string_view ClassName = "KOVA_A_Agenda.clsAgenda";

    static std::span<const Method<clsAgenda>> Methods();
    static std::span<const Property<clsAgenda>> Properties();

    /// Opens the day list inside the container. The answer is empty in every case: whether the list
    /// opened cannot be learned from it.
    Value AbrirLista(Long HandleDaJanelaPrincipal, Long HandleDoContainer);

private:
    Value AbrirLista(std::span<Argument> arguments);
    void DadosDoUsuario(const Value& value);
    void NomeDaAplicacao(const Value& value);
};

} // namespace kova::agenda
