#include "family/presentation/clsFundoEscuro.hpp"

#include "family/presentation/dimming_layer.hpp"

#include <QApplication>

namespace kova::family {

namespace {

[[noreturn]] void FailOnMember(std::string_view member)
{
    throw Failure(FailureNumber::NoSuchMember,
                  "KOVA_A_EfeitosDeTela.clsFundoEscuro não aceita a propriedade ou método '" + Text(member)
                      + "'.");
}

void RequireCount(std::span<Argument> arguments, std::size_t count)
{
    if (arguments.size() != count)
        throw Failure(FailureNumber::WrongArgumentCount);
}

/// The window with that handle; null where there is none, or no screen.
QWidget* WindowOf(Long handle)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return nullptr;
    QWidget* widget = QWidget::find(static_cast<WId>(handle));
    return widget ? widget->window() : nullptr;
}

} // namespace

Value clsFundoEscuro::Get(std::string_view member) { FailOnMember(member); }

void clsFundoEscuro::Set(std::string_view member, const Value&) { FailOnMember(member); }

Value clsFundoEscuro::Call(std::string_view member, std::span<Argument> arguments)
{
    if (member == "Aplicar") {
        RequireCount(arguments, 2);
        const Long handle = arguments[0].Get().ToLong();
        if (QWidget* window = WindowOf(handle))
            DimmingLayer::Apply(*window, handle, hold_());
    } else if (member == "Remover") {
        RequireCount(arguments, 1);
        DimmingLayer::Remove(arguments[0].Get().ToLong());
    } else {
        FailOnMember(member);
    }
    return {};
}

} // namespace kova::family
