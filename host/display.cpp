#include "host/display.hpp"

#include "system/display.hpp"
#include "system/path_text.hpp"

#include <QLibraryInfo>
#include <QtGlobal>

namespace kova::host {

namespace {

constexpr const char* PlatformVariable = "QT_QPA_PLATFORM";

bool ToolkitSpeaksWayland()
{
    const std::filesystem::path plugins =
        system::PathOf(QLibraryInfo::path(QLibraryInfo::PluginsPath).toStdString());
    return std::filesystem::exists(plugins / "platforms" / "libqwayland-generic.so");
}

} // namespace

bool HasDisplay()
{
    const QByteArray chosen = qgetenv(PlatformVariable);
    return chosen != "offscreen" && chosen != "minimal" && system::DisplayAnswers(ToolkitSpeaksWayland());
}

void UseNoDisplay() { qputenv(PlatformVariable, "offscreen"); }

} // namespace kova::host
