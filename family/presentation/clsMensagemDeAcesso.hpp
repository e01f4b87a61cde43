#pragma once

#include "agenda/contracts/support/member_tables.hpp"

#include <memory>

namespace kova::family {

class WaitWindow;

/// KOVA_A_MsgAcesso.clsMensagem: one line of text on the screen while the caller works.
///
/// Exibir(text: Text) shows it and returns at once; a second call changes the text. Fechar() takes it away,
/// and so does the end of the object. Fechar without Exibir does nothing, and without a screen nothing is
/// shown.
class clsMensagemDeAcesso : public ByTables<clsMensagemDeAcesso> {
public:
    static constexpr std::string_view ClassName = "KOVA_A_MsgAcesso.clsMensagem";

    clsMensagemDeAcesso();
    ~clsMensagemDeAcesso() override;

    static std::span<const Method<clsMensagemDeAcesso>> Methods();
    static std::span<const Property<clsMensagemDeAcesso>> Properties() { return {}; }

private:
    Value Exibir(std::span<Argument> arguments);
    Value Fechar(std::span<Argument> arguments);

    std::unique_ptr<WaitWindow> window_;
};

} // namespace kova::family
