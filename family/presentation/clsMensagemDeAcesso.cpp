#include "family/presentation/clsMensagemDeAcesso.hpp"

#include "family/presentation/wait_window.hpp"

#include <QApplication>

namespace kova::family {

namespace {

bool ThereIsAScreen() { return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr; }

} // namespace

clsMensagemDeAcesso::clsMensagemDeAcesso() = default;

clsMensagemDeAcesso::~clsMensagemDeAcesso() = default;

std::span<const Method<clsMensagemDeAcesso>> clsMensagemDeAcesso::Methods()
{
    static constexpr Method<clsMensagemDeAcesso> methods[] = {
        {"Exibir", 1, 1, &clsMensagemDeAcesso::Exibir},
        {"Fechar", 0, 0, &clsMensagemDeAcesso::Fechar},
    };
    return methods;
}

Value clsMensagemDeAcesso::Exibir(std::span<Argument> arguments)
{
    const QString text = QString::fromStdString(arguments[0].Get().ToText());
    window_.reset();
    if (ThereIsAScreen())
        window_ = std::make_unique<WaitWindow>(text);
    return {};
}

Value clsMensagemDeAcesso::Fechar(std::span<Argument>)
{
    window_.reset();
    return {};
}

} // namespace kova::family
