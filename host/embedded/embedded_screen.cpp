#include "host/embedded/embedded_screen.hpp"

#include "host/embedded/foreign_container.hpp"
#include "host/toolkit_words.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QThread>

namespace kova::host {

namespace {

/// The toolkit's application, where the program does not happen to have one. What belongs to the toolkit lies
/// beside this library, not beside the program.
void BeginApplication()
{
    const std::string folder = system::TextOf(system::OwnPath().parent_path());
    QCoreApplication::addLibraryPath(QString::fromStdString(folder));
    static int count = 1;
    static char name[] = "kovaris";
    static char* words[] = {name, nullptr};
    // How the program is scaled is for itself to say, and when it ends.
    QCoreApplication::setAttribute(Qt::AA_PluginApplication);
    auto* application = new QApplication(count, words);
    QApplication::setQuitOnLastWindowClosed(false);
    qt::ApplyLook(*application, qt::LookOfDesktop(*application));
    SpeakPortuguese(*application);
}

} // namespace

EmbeddedScreen* EmbeddedScreen::Get()
{
    if (!QCoreApplication::instance())
        BeginApplication();
    if (QThread::currentThread() != QCoreApplication::instance()->thread())
        return nullptr;
    // Never ended: what it is made of may go before it at the end of a process.
    static auto* screen = new EmbeddedScreen;
    qt::TakeForeignWindowsBy(ContainerIn);
    return screen;
}

} // namespace kova::host
