#include "host/application.hpp"

#include "family/data/engine/failure_words.hpp"
#include "host/arguments/call.hpp"
#include "host/display.hpp"
#include "host/messages.hpp"
#include "host/session/shops.hpp"
#include "host/toolkit_words.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>

#include <cstdlib>
#include <exception>
#include <iostream>

namespace kova::host {

namespace {

/// Where the window goes: on a screen, into the picture that was asked for, or into one of our own
/// because there is no screen.
Outlet ChooseOutlet(const Options& options)
{
    if (!options.picture.empty())
        return Outlet::PictureOnPurpose;
    return HasDisplay() ? Outlet::Window : Outlet::PictureForWantOfDisplay;
}

/// The look that was asked for, else the desktop's. A picture is drawn light.
qt::Look ChooseLook(const Options& options, Outlet outlet, const QApplication& application)
{
    if (options.look)
        return *options.look == LookChoice::Dark ? qt::Look::Dark : qt::Look::Light;
    return outlet == Outlet::Window ? qt::LookOfDesktop(application) : qt::Look::Light;
}

/// Remarks of the toolkit that nobody can act on: about every window drawn into memory, and about a folder
/// that it makes itself where the desktop names none.
void LeaveOutRemarks(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support "))
        && !message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        std::cerr << message.toStdString() << std::endl;
}

int RunTelling(const Options& options, Outlet outlet)
{
    try {
        return RunShops(options, outlet);
    } catch (const arguments::BadArguments&) {
        throw;
    } catch (const std::exception& failure) {
        TellFailure(family::WordsFor(failure));
    }
    return EXIT_FAILURE;
}

} // namespace

int RunApplication(char* programName, const Options& options)
{
    const Outlet outlet = ChooseOutlet(options);
    if (outlet != Outlet::Window)
        UseNoDisplay();
    qInstallMessageHandler(LeaveOutRemarks);
    int count = 1;
    char* words[] = {programName, nullptr};
    QApplication application(count, words);
    QApplication::setApplicationName(QStringLiteral("kovaris"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("kovaris"));
    qt::ApplyLook(application, ChooseLook(options, outlet, application));
    SpeakPortuguese(application);
    return RunTelling(options, outlet);
}

} // namespace kova::host
