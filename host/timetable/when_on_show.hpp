#pragma once

#include <QTimer>

#include <functional>
#include <string>

namespace kova::toolkit {
class ToolkitModel;
}

namespace kova::host {

/// Does something once a form is on show and takes input, as long as this lives: also inside the event loop
/// of whoever has shown the form.
class WhenOnShow {
public:
    WhenOnShow(const toolkit::ToolkitModel& toolkit, std::string form, std::function<void()> act);

private:
    void Look();

    const toolkit::ToolkitModel& toolkit_;
    const std::string form_;
    const std::function<void()> act_;
    QTimer looking_;
};

} // namespace kova::host
