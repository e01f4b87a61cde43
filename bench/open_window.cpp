#include "bench/open_window.hpp"

#include "host/session/session.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

namespace kova::bench {

namespace {

[[noreturn]] void BecomeWindow(const host::Options& options)
{
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    try {
        int count = 1;
        char name[] = "kovaris";
        char* words[] = {name, nullptr};
        QApplication application(count, words);
        qt::ApplyLook(application);
        _exit(host::RunSession(options, host::Outlet::Window).status);
    } catch (const std::exception& failure) {
        std::cerr << "window: " << failure.what() << std::endl;
    }
    _exit(1);
}

} // namespace

OpenWindow::OpenWindow(const host::Options& options) : process_(fork())
{
    if (process_ < 0)
        throw std::runtime_error("no process");
    if (process_ == 0)
        BecomeWindow(options);
}

OpenWindow::~OpenWindow()
{
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
}

double OpenWindow::ProcessorSeconds() const
{
    constexpr double nanoseconds = 1e-9;
    double spent = 0;
    int threads = 0;
    const std::string tasks = "/proc/" + std::to_string(process_) + "/task";
    for (const auto& task : std::filesystem::directory_iterator(tasks)) {
        std::ifstream file(task.path() / "schedstat");
        double time = 0;
        if (file >> time)
            spent += time * nanoseconds;
        ++threads;
    }
    // What has ended leaves one that is not collected yet; a window has several.
    if (threads < 2)
        throw std::runtime_error("the window has closed");
    return spent;
}

} // namespace kova::bench
