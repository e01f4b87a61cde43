#pragma once

#include "agenda/contracts/business_services.hpp"

namespace kova::family {

/// KOVA_A_MsgErro.clsMensagem: the error screen. Its one method,
/// Exibir(number, description, place, name of the application), shows the four until the user closes the
/// window. They may be of any type and are not written. Where nobody can close a window (no display) the
/// report goes to the standard error output and the call returns at once.
class clsMensagem : public Component {
public:
    /// There is no property: fails with 438.
    Value Get(std::string_view member) override;
    void Set(std::string_view member, const Value& value) override;
    Value Call(std::string_view member, std::span<Argument> arguments) override;
    using Component::Call;
};

} // namespace kova::family
