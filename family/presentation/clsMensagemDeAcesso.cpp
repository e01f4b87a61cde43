#include "family/presentation/clsMensagemDeAcesso.hpp"

#include "family/presentation/wait_window.hpp"

#include <QApplication>

namespace kova::family {

namespace {

[[noreturn]] void FailOnMember(std::string_view member)
{
    throw Failure(FailureNumber::NoSuchMember,
                  "KOVA_A_MsgAcesso.clsMensagem não aceita a propriedade ou método '" + Text(member) + "'.");
}

void RequireCount(std::span<Argument> arguments, std::size_t count)
{
    if (arguments.size() != count)
        throw Failure(FailureNumber::WrongArgumentCount);
}

bool ThereIsAScreen() { return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr; }

} // namespace

clsMensagemDeAcesso::clsMensagemDeAcesso() = default;

clsMensagemDeAcesso::~clsMensagemDeAcesso() = default;

Value clsMensagemDeAcesso::Get(std::string_view member) { FailOnMember(member); }

void clsMensagemDeAcesso::Set(std::string_view member, const Value&) { FailOnMember(member); }

Value clsMensagemDeAcesso::Call(std::string_view member, std::span<Argument> arguments)
{
    if (member == "Exibir") {
        RequireCount(arguments, 1);
        const QString text = QString::fromStdString(arguments[0].Get().ToText());
        window_.reset();
        if (ThereIsAScreen())
            window_ = std::make_unique<WaitWindow>(text);
    } else if (member == "Fechar") {
        RequireCount(arguments, 0);
        window_.reset();
    } else {
        FailOnMember(member);
    }
    return {};
}

} // namespace kova::family
