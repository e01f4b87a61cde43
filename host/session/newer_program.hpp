#pragma once

#include <QTimer>

#include <functional>

namespace kova::host {

class MainWindow;

/// Shows it to whoever works in the window, who goes on working.
void TellOfNewerProgram(MainWindow& window);

/// Tells once that a newer version of the program was installed while this one is open.
class NewerProgram {
public:
    using Tell = std::function<void()>;
    using Look = std::function<bool()>;

    /// Looks whether the program's file was replaced, once a minute.
    explicit NewerProgram(Tell tell);
    /// Looks as it is told to, every so many milliseconds.
    NewerProgram(Tell tell, Look look, int milliseconds);

    /// From now on; the event loop does the rest.
    void Watch() { timer_.start(); }

    /// Looks now.
    bool IsThere() const { return look_(); }

private:
    Tell tell_;
    Look look_;
    QTimer timer_;
};

} // namespace kova::host
