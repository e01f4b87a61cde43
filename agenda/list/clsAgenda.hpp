#pragma once

#include "agenda/contracts/business_services.hpp"

namespace kova::agenda {

/// The module's one public class. A shell sets DadosDoUsuario and NomeDaAplicacao and then calls
/// AbrirLista, which returns while the list lives on inside the shell's window.
class clsAgenda : public Component {
public:
    /// Both properties are write-only, so every read fails with 438.
    Value Get(std::string_view member) override;
    /// DadosDoUsuario takes an object, NomeDaAplicacao a text.
    void Set(std::string_view member, const Value& value) override;
    /// AbrirLista(HandleDaJanelaPrincipal: Long, HandleDoContainer: Long), whose result is empty.
    Value Call(std::string_view member, std::span<Argument> arguments) override;
    using Component::Call;

    /// Opens the day list inside the container. The answer is empty in every case: whether the list
    /// opened cannot be learned from it.
    Value AbrirLista(Long HandleDaJanelaPrincipal, Long HandleDoContainer);
};

} // namespace kova::agenda
