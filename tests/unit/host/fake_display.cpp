#include "tests/unit/host/fake_display.hpp"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace kova::host {

namespace fs = std::filesystem;

SocketServer::SocketServer(const fs::path& path, std::string answer)
    : path_(path), answer_(std::move(answer)), socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    fs::create_directories(path.parent_path());
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    fs::remove(path);
    if (::bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0
        || ::listen(socket_, 4) != 0)
        throw std::runtime_error("nobody can listen at " + path.string());
    answering_ = std::thread([this] { Answer(); });
}

SocketServer::~SocketServer()
{
    ::shutdown(socket_, SHUT_RDWR);
    answering_.join();
    ::close(socket_);
    fs::remove(path_);
}

void SocketServer::Answer() const
{
    for (int visitor = ::accept(socket_, nullptr, nullptr); visitor >= 0;
         visitor = ::accept(socket_, nullptr, nullptr)) {
        std::array<char, 512> heard{};
        if (!answer_.empty() && ::recv(visitor, heard.data(), heard.size(), 0) > 0)
            ::send(visitor, answer_.data(), answer_.size(), MSG_NOSIGNAL);
        ::close(visitor);
    }
}

std::string GreetingOfX(bool isWelcome)
{
    constexpr std::size_t head = 8;
    constexpr std::size_t setup = 32;
    constexpr std::size_t screen = 40;
    constexpr std::size_t numberOfScreens = 28;
    std::string greeting(isWelcome ? head + setup + screen : head, '\0');
    greeting[0] = isWelcome ? 1 : 0;
    greeting[2] = 11;
    if (isWelcome) {
        greeting[6] = (setup + screen) / 4;
        greeting[numberOfScreens] = 1;
    }
    return greeting;
}

NoDisplayNamed::NoDisplayNamed()
{
    for (const char* name :
         {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "XAUTHORITY"}) {
        const char* value = std::getenv(name);
        before_[name] = value ? std::make_unique<std::string>(value) : nullptr;
        unsetenv(name);
    }
}

NoDisplayNamed::~NoDisplayNamed()
{
    for (const auto& [name, value] : before_)
        value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
}

int NoDisplayNamed::FreeNumber()
{
    int number = 7000 + getpid() % 1000;
    while (fs::exists(SocketOfX(number)))
        ++number;
    return number;
}

fs::path NoDisplayNamed::SocketOfX(int number) { return "/tmp/.X11-unix/X" + std::to_string(number); }

void NoDisplayNamed::Name(int number) { setenv("DISPLAY", (":" + std::to_string(number)).c_str(), 1); }

} // namespace kova::host
