#pragma once

#include "family/data/engine/database.hpp"
#include "host/transport/transport_dialog.hpp"

#include <memory>
#include <string>

namespace kova::toolkit {
class ToolkitModel;
}

namespace kova::host {

class MainWindow;

/// "Transporte do dia..." in the menu, by Ctrl+B, too: the stops of the day that the agenda's list shows,
/// over a connection of its own to the shop at that source, which is opened the first time.
class TransportEntry {
public:
    /// The company's name is printed. The toolkit and the clock must outlive the window.
    TransportEntry(std::string source, std::string company, toolkit::ToolkitModel& toolkit,
                   const Clock& clock);

    void AddTo(MainWindow& window);

private:
    void Open();
    /// The clock's where the list shows none.
    Date DayOnShow() const;

    const std::string source_, company_;
    toolkit::ToolkitModel& toolkit_;
    const Clock& clock_;
    MainWindow* window_ = nullptr;
    std::shared_ptr<family::Database> database_;
};

} // namespace kova::host
