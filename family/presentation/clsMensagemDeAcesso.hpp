#pragma once

#include "agenda/contracts/business_services.hpp"

#include <memory>

namespace kova::family {

class WaitWindow;

/// KOVA_A_MsgAcesso.clsMensagem: one line of text on the screen while the caller works.
///
/// Exibir(text: Text) shows it and returns at once; a second call changes the text. Fechar() takes it away,
/// and so does the end of the object. Fechar without Exibir does nothing, and without a screen nothing is
/// shown.
class clsMensagemDeAcesso : public Component {
public:
    clsMensagemDeAcesso();
    ~clsMensagemDeAcesso() override;

    /// There is no property: fails with 438.
    Value Get(std::string_view member) override;
    void Set(std::string_view member, const Value& value) override;
    Value Call(std::string_view member, std::span<Argument> arguments) override;
    using Component::Call;

private:
    std::unique_ptr<WaitWindow> window_;
};

} // namespace kova::family
