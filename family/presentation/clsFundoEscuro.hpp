#pragma once

#include "agenda/contracts/business_services.hpp"

namespace kova::family {

/// KOVA_A_EfeitosDeTela.clsFundoEscuro: the dimming of a window behind a dialog, known by the window's
/// handle alone, so any object of the class may take away what another one applied.
///
/// Aplicar(handle: Long, option: Integer) dims the window; 0 is the only option. Remover(handle: Long)
/// ends it. Applying twice dims once; removing what is not there, and a handle without a window, do
/// nothing. Neither argument is written.
class clsFundoEscuro : public Component {
public:
    /// There is no property: fails with 438.
    Value Get(std::string_view member) override;
    void Set(std::string_view member, const Value& value) override;
    Value Call(std::string_view member, std::span<Argument> arguments) override;
    using Component::Call;
};

} // namespace kova::family
