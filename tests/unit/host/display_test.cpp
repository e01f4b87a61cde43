#include "host/display.hpp"

#include <QLibraryInfo>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <string>
#include <thread>

namespace kova::host {

namespace {

namespace fs = std::filesystem;

/// Somebody who listens at a socket's path, and says the same to everybody.
class Server {
public:
    Server(const fs::path& path, std::string answer)
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
    ~Server()
    {
        ::shutdown(socket_, SHUT_RDWR);
        answering_.join();
        ::close(socket_);
        fs::remove(path_);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

private:
    void Answer() const
    {
        for (int visitor = ::accept(socket_, nullptr, nullptr); visitor >= 0;
             visitor = ::accept(socket_, nullptr, nullptr)) {
            std::array<char, 512> heard{};
            if (!answer_.empty() && ::recv(visitor, heard.data(), heard.size(), 0) > 0)
                ::send(visitor, answer_.data(), answer_.size(), MSG_NOSIGNAL);
            ::close(visitor);
        }
    }

    fs::path path_;
    std::string answer_;
    int socket_;
    std::thread answering_;
};

/// What an X server says first: that the visitor may come in, and that there is one screen; or that the
/// visitor may not, and no reason.
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

/// The environment as a test wants it; afterwards as it was.
class TheDisplay : public testing::Test {
protected:
    TheDisplay()
    {
        for (const char* name :
             {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "XAUTHORITY"}) {
            const char* value = std::getenv(name);
            before_[name] = value ? std::make_unique<std::string>(value) : nullptr;
            unsetenv(name);
        }
        std::string pattern = (fs::temp_directory_path() / "tela-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~TheDisplay() override
    {
        for (const auto& [name, value] : before_)
            value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
        fs::remove_all(folder_);
    }

    /// A number that no server of this computer has.
    static int FreeNumber()
    {
        int number = 7000 + getpid() % 1000;
        while (fs::exists(SocketOfX(number)))
            ++number;
        return number;
    }
    static fs::path SocketOfX(int number) { return "/tmp/.X11-unix/X" + std::to_string(number); }
    static void Name(int number) { setenv("DISPLAY", (":" + std::to_string(number)).c_str(), 1); }

    std::map<std::string, std::unique_ptr<std::string>> before_;
    fs::path folder_;
};

} // namespace

TEST_F(TheDisplay, IsNotThereWithoutAnyName) { EXPECT_FALSE(HasDisplay()); }

TEST_F(TheDisplay, IsThereWhereAnXServerLetsUsIn)
{
    const int number = FreeNumber();
    const Server server(SocketOfX(number), GreetingOfX(true));
    Name(number);
    EXPECT_TRUE(HasDisplay());
}

TEST_F(TheDisplay, IsNotThereWhereAnXServerDoesNotLetUsIn)
{
    const int number = FreeNumber();
    const Server server(SocketOfX(number), GreetingOfX(false));
    Name(number);
    EXPECT_FALSE(HasDisplay());
}

TEST_F(TheDisplay, IsNotThereWhereNobodyAnswers)
{
    Name(FreeNumber());
    EXPECT_FALSE(HasDisplay());
    setenv("WAYLAND_DISPLAY", (folder_ / "ninguem").c_str(), 1);
    EXPECT_FALSE(HasDisplay());
    setenv("WAYLAND_DISPLAY", (folder_ / std::string(200, 'x')).c_str(), 1);
    EXPECT_FALSE(HasDisplay());
}

TEST_F(TheDisplay, IsNotAskedForWhereTheToolkitDrawsIntoMemory)
{
    const int number = FreeNumber();
    const Server server(SocketOfX(number), GreetingOfX(true));
    Name(number);
    for (const char* platform : {"offscreen", "minimal"}) {
        setenv("QT_QPA_PLATFORM", platform, 1);
        EXPECT_FALSE(HasDisplay()) << platform;
    }
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    EXPECT_TRUE(HasDisplay());
    UseNoDisplay();
    EXPECT_FALSE(HasDisplay());
}

TEST_F(TheDisplay, OfWaylandCountsWhereTheToolkitSpeaksItsLanguage)
{
    const Server server(folder_ / "wayland-7", "");
    setenv("XDG_RUNTIME_DIR", folder_.c_str(), 1);
    setenv("WAYLAND_DISPLAY", "wayland-7", 1);
    const fs::path plugins = QLibraryInfo::path(QLibraryInfo::PluginsPath).toStdString();
    EXPECT_EQ(HasDisplay(), fs::exists(plugins / "platforms" / "libqwayland-generic.so"));
}

} // namespace kova::host
