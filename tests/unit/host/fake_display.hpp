#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <thread>

namespace kova::host {

/// Somebody who listens at a socket's path, and says the same to everybody.
class SocketServer {
public:
    SocketServer(const std::filesystem::path& path, std::string answer);
    ~SocketServer();
    SocketServer(const SocketServer&) = delete;
    SocketServer& operator=(const SocketServer&) = delete;

private:
    void Answer() const;

    std::filesystem::path path_;
    std::string answer_;
    int socket_;
    std::thread answering_;
};

/// What an X server says first: that the visitor may come in, and that there is one screen; or that the
/// visitor may not, and no reason.
std::string GreetingOfX(bool isWelcome);

/// An environment that names no display, until the end of its life; then it is as it was.
class NoDisplayNamed {
public:
    NoDisplayNamed();
    ~NoDisplayNamed();
    NoDisplayNamed(const NoDisplayNamed&) = delete;
    NoDisplayNamed& operator=(const NoDisplayNamed&) = delete;

    /// A number that no X server of this computer has.
    static int FreeNumber();
    static std::filesystem::path SocketOfX(int number);
    /// Names that X server.
    static void Name(int number);

private:
    std::map<std::string, std::unique_ptr<std::string>> before_;
};

} // namespace kova::host
