#pragma once

#include "host/host_toolkit.hpp"
#include "host/session/session_clock.hpp"

namespace kova::host {

/// What a process has once in which components of ours are used by a program that is not of the family: the
/// toolkit's application, which lives in that program's own event loop, the forms and the clock. It belongs
/// to the thread that asks for it first and stays to the end of the process.
class EmbeddedScreen {
public:
    /// Null in any other thread.
    static EmbeddedScreen* Get();

    EmbeddedScreen(const EmbeddedScreen&) = delete;
    EmbeddedScreen& operator=(const EmbeddedScreen&) = delete;

    kova::Clock& Clock() { return clock_; }
    kova::Toolkit& Toolkit() { return toolkit_; }

private:
    EmbeddedScreen() = default;

    SessionClock clock_;
    HostToolkit toolkit_{clock_, 0};
};

} // namespace kova::host
