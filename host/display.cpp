#include "host/display.hpp"

#include <QLibraryInfo>

#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

namespace kova::host {

namespace fs = std::filesystem;

namespace {

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// Asks the X server through its own client library, which knows the addresses and the permissions. The
/// toolkit loads the same one later.
bool XServerAnswers()
{
    void* library = dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        return false;
    using Connect = void* (*)(const char*, int*);
    using HasError = int (*)(void*);
    using Disconnect = void (*)(void*);
    const auto connect = reinterpret_cast<Connect>(dlsym(library, "xcb_connect"));
    const auto hasError = reinterpret_cast<HasError>(dlsym(library, "xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<Disconnect>(dlsym(library, "xcb_disconnect"));
    if (connect == nullptr || hasError == nullptr || disconnect == nullptr)
        return false;
    void* connection = connect(nullptr, nullptr);
    const bool answers = hasError(connection) == 0;
    disconnect(connection);
    return answers;
}

bool SocketAnswers(const fs::path& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.string().size() >= sizeof address.sun_path)
        return false;
    std::strcpy(address.sun_path, path.c_str());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return false;
    const bool answers = ::connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return answers;
}

bool ToolkitSpeaksWayland()
{
    const fs::path plugins = QLibraryInfo::path(QLibraryInfo::PluginsPath).toStdString();
    return fs::exists(plugins / "platforms" / "libqwayland-generic.so");
}

bool WaylandAnswers(const std::string& display)
{
    // An absolute name is the socket's path; the folder is ignored then.
    return ToolkitSpeaksWayland() && SocketAnswers(fs::path(Environment("XDG_RUNTIME_DIR")) / display);
}

} // namespace

bool HasDisplay()
{
    const std::string chosen = Environment("QT_QPA_PLATFORM");
    if (chosen == "offscreen" || chosen == "minimal")
        return false;
    if (!Environment("DISPLAY").empty() && XServerAnswers())
        return true;
    const std::string wayland = Environment("WAYLAND_DISPLAY");
    return !wayland.empty() && WaylandAnswers(wayland);
}

void UseNoDisplay() { setenv("QT_QPA_PLATFORM", "offscreen", 1); }

} // namespace kova::host
