#pragma once

#include "host/options.hpp"

#include <sys/types.h>

namespace kova::bench {

/// The application's window, open in a process of its own until this goes; the toolkit draws into memory.
class OpenWindow {
public:
    /// To be made while this process has neither threads nor an application of the toolkit. Throws
    /// std::runtime_error where there is no process.
    explicit OpenWindow(const host::Options& options);
    ~OpenWindow();
    OpenWindow(const OpenWindow&) = delete;
    OpenWindow& operator=(const OpenWindow&) = delete;

    /// The seconds that processors have spent on it so far. Also from another process. Throws
    /// std::runtime_error where it has ended.
    double ProcessorSeconds() const;

private:
    pid_t process_ = 0;
};

} // namespace kova::bench
