#include "family/presentation/clsFundoEscuro.hpp"

#include "family/presentation/dimming_layer.hpp"

#include <QApplication>

namespace kova::family {

namespace {

/// The window with that handle; null where there is none, or no screen.
QWidget* WindowOf(Long handle)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return nullptr;
    QWidget* widget = QWidget::find(static_cast<WId>(handle));
    return widget ? widget->window() : nullptr;
}

} // namespace

std::span<const Method<clsFundoEscuro>> clsFundoEscuro::Methods()
{
    static constexpr Method<clsFundoEscuro> methods[] = {
        {"Aplicar", 2, 2, &clsFundoEscuro::Aplicar},
        {"Remover", 1, 1, &clsFundoEscuro::Remover},
    };
    return methods;
}

Value clsFundoEscuro::Aplicar(std::span<Argument> arguments)
{
    const Long handle = arguments[0].Get().ToLong();
    if (QWidget* window = WindowOf(handle))
        DimmingLayer::Apply(*window, handle, hold_());
    return {};
}

Value clsFundoEscuro::Remover(std::span<Argument> arguments)
{
    DimmingLayer::Remove(arguments[0].Get().ToLong());
    return {};
}

} // namespace kova::family
