#include "system/display.hpp"

#include "system/library.hpp"
#include "system/path_text.hpp"
#include "system/posix/descriptor.hpp"

#include <sys/socket.h>
#include <sys/un.h>

#include <cstdlib>
#include <cstring>

namespace kova::system {

namespace {

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

using Connect = void* (*)(const char*, int*);
using HasError = int (*)(void*);
using Disconnect = void (*)(void*);

bool LetsUsIn(const Library& client)
{
    const auto connect = reinterpret_cast<Connect>(client.Find("xcb_connect"));
    const auto hasError = reinterpret_cast<HasError>(client.Find("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<Disconnect>(client.Find("xcb_disconnect"));
    if (connect == nullptr || hasError == nullptr || disconnect == nullptr)
        return false;
    void* connection = connect(nullptr, nullptr);
    const bool answers = hasError(connection) == 0;
    disconnect(connection);
    return answers;
}

/// Asks the X server through its own client library, which knows the addresses and the permissions. The
/// screen toolkit loads the same one later.
bool XServerAnswers()
{
    try {
        Library client("libxcb.so.1");
        client.Abandon();
        return LetsUsIn(client);
    } catch (const LibraryNotLoaded&) {
        return false;
    }
}

bool SocketAnswers(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        return false;
    std::strcpy(address.sun_path, path.c_str());
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return socket.IsOpen()
        && ::connect(socket.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
}

bool WaylandAnswers(const std::string& display)
{
    // An absolute name is the socket's path; the folder is ignored then.
    return SocketAnswers(TextOf(PathOf(Environment("XDG_RUNTIME_DIR")) / PathOf(display)));
}

} // namespace

bool DisplayAnswers(bool speaksWayland)
{
    if (!Environment("DISPLAY").empty() && XServerAnswers())
        return true;
    const std::string wayland = Environment("WAYLAND_DISPLAY");
    return speaksWayland && !wayland.empty() && WaylandAnswers(wayland);
}

} // namespace kova::system
