#pragma once

#include "agenda/contracts/support/member_tables.hpp"

#include <functional>
#include <memory>

namespace kova::family {

/// KOVA_A_EfeitosDeTela.clsFundoEscuro: the dimming of a window behind a dialog, known by the window's
/// handle alone, so any object of the class may take away what another one applied.
///
/// Aplicar(handle: Long, option: Integer) dims the window; 0 is the only option. Remover(handle: Long)
/// ends it, also where the window was closed meanwhile. Applying twice dims once; removing what is not
/// there, and a handle without a window, do nothing. Neither argument is written. What is left standing
/// fades out at the user's next press or key.
class clsFundoEscuro : public ByTables<clsFundoEscuro> {
public:
    static constexpr std::string_view ClassName = "KOVA_A_EfeitosDeTela.clsFundoEscuro";

    /// Answers what keeps this code loaded: the dimming outlives the object that applied it.
    using Holder = std::function<std::shared_ptr<void>()>;

    explicit clsFundoEscuro(Holder hold = [] { return nullptr; }) : hold_(std::move(hold)) { }

    static std::span<const Method<clsFundoEscuro>> Methods();
    static std::span<const Property<clsFundoEscuro>> Properties() { return {}; }

private:
    Value Aplicar(std::span<Argument> arguments);
    Value Remover(std::span<Argument> arguments);

    Holder hold_;
};

} // namespace kova::family
