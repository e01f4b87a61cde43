#include "family/presentation/clsMensagem.hpp"

#include "family/presentation/error_window.hpp"
#include "family/presentation/window_in_front.hpp"

#include <QApplication>

#include <iostream>

namespace kova::family {

namespace {

[[noreturn]] void FailOnMember(std::string_view member)
{
    throw Failure(FailureNumber::NoSuchMember,
                  "KOVA_A_MsgErro.clsMensagem não aceita a propriedade ou método '" + Text(member) + "'.");
}

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

Value clsMensagem::Get(std::string_view member) { FailOnMember(member); }

void clsMensagem::Set(std::string_view member, const Value&) { FailOnMember(member); }

Value clsMensagem::Call(std::string_view member, std::span<Argument> arguments)
{
    if (member != "Exibir")
        FailOnMember(member);
    if (arguments.size() != 4)
        throw Failure(FailureNumber::WrongArgumentCount);
    Show({.number = ReadableText(arguments[0].Get()),
          .description = ReadableText(arguments[1].Get()),
          .place = ReadableText(arguments[2].Get()),
          .application = ReadableText(arguments[3].Get())});
    return {};
}

} // namespace kova::family
