#include "system/network.hpp"

#include "system/windows/wide_text.hpp"

#include <winsock2.h>
#include <ws2tcpip.h>

namespace kova::system {

namespace {

/// The system's network answers only those who have asked for it once.
class NetworkUse {
public:
    NetworkUse()
    {
        WSADATA details;
        begun_ = ::WSAStartup(MAKEWORD(2, 2), &details) == 0;
    }
    ~NetworkUse()
    {
        if (begun_)
            ::WSACleanup();
    }
    NetworkUse(const NetworkUse&) = delete;
    NetworkUse& operator=(const NetworkUse&) = delete;

private:
    bool begun_ = false;
};

} // namespace

bool AwaitSocket(std::intptr_t socket, SocketEvent event, int milliseconds)
{
    const NetworkUse use;
    const SHORT awaited = event == SocketEvent::CanBeRead ? POLLIN : POLLOUT;
    WSAPOLLFD polled{static_cast<SOCKET>(socket), awaited, 0};
    return ::WSAPoll(&polled, 1, milliseconds) > 0;
}

bool IsKnownHost(const std::string& name)
{
    const NetworkUse use;
    ADDRINFOW* found = nullptr;
    if (::GetAddrInfoW(Wide(name).c_str(), nullptr, nullptr, &found) != 0)
        return false;
    ::FreeAddrInfoW(found);
    return true;
}

} // namespace kova::system
