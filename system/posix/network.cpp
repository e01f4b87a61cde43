#include "system/network.hpp"

#include <netdb.h>
#include <poll.h>

namespace kova::system {

bool AwaitSocket(std::intptr_t socket, SocketEvent event, int milliseconds)
{
    const short awaited = event == SocketEvent::CanBeRead ? POLLIN : POLLOUT;
    pollfd polled{static_cast<int>(socket), awaited, 0};
    return ::poll(&polled, 1, milliseconds) > 0;
}

bool IsKnownHost(const std::string& name)
{
    addrinfo* found = nullptr;
    if (::getaddrinfo(name.c_str(), nullptr, nullptr, &found) != 0)
        return false;
    ::freeaddrinfo(found);
    return true;
}

} // namespace kova::system
