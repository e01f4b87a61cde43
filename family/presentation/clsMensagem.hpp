#pragma once

#include "agenda/contracts/support/member_tables.hpp"

namespace kova::family {

/// KOVA_A_MsgErro.clsMensagem: the error screen. Its one method,
/// Exibir(number, description, place, name of the application), shows the four until the user closes the
/// window. They may be of any type and are not written. Where nobody can close a window (no display) the
/// report goes to the standard error output and the call returns at once.
class clsMensagem : public ByTables<clsMensagem> {
public:
    static constexpr std::string_view ClassName = "KOVA_A_MsgErro.clsMensagem";

    static std::span<const Method<clsMensagem>> Methods();
    static std::span<const Property<clsMensagem>> Properties() { return {}; }

private:
    Value Exibir(std::span<Argument> arguments);
};

} // namespace kova::family
