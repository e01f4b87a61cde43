#include "family/presentation/clsMensagem.hpp"

#include "family/presentation/error_window.hpp"
#include "family/presentation/window_in_front.hpp"

#include <QApplication>

#include <iostream>

namespace kova::family {

namespace {

/// Whether there is a screen with somebody in front of it.
bool SomebodyIsWatching()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return false;
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

void Show(const ErrorReport& report)
{
    if (!SomebodyIsWatching()) {
        std::cerr << AsText(report) << std::flush;
        return;
    }
    ErrorWindow window(report, WindowInFront());
    window.exec();
}

} // namespace

std::span<const Method<clsMensagem>> clsMensagem::Methods()
{
    static constexpr Method<clsMensagem> methods[] = {{"Exibir", 4, 4, &clsMensagem::Exibir}};
    return methods;
}

Value clsMensagem::Exibir(std::span<Argument> arguments)
{
    Show({.number = ReadableText(arguments[0].Get()),
          .description = ReadableText(arguments[1].Get()),
          .place = ReadableText(arguments[2].Get()),
          .application = ReadableText(arguments[3].Get())});
    return {};
}

} // namespace kova::family
