#pragma once

#include "agenda/contracts/business_services.hpp"

#include <QTimer>

#include <functional>
#include <string>

namespace kova::host {

/// Has the database component make a copy once a day while the application is open: soon after the window has
/// been painted, and again when midnight has passed. The work is done in the background; nobody waits for
/// it.
class DailyBackup {
public:
    /// Tells why the copy could not be made, and "" once there is one.
    using Tell = std::function<void(const std::string& reason)>;

    /// `components` must outlive this.
    DailyBackup(ComponentService& components, Tell tell);

    /// Begins at once where no copy is being made. The event loop does the rest.
    void Begin();

private:
    void LookWhetherDone();
    void End();
    /// Runs a step; a failure of it ends the copy and is told.
    template <class Step> void Telling(Step step);

    ComponentService& components_;
    Tell tell_;
    QTimer everyHour_, whileRunning_;
    /// The database component that is at it; empty where none is. It gives the copy up when it goes.
    ComponentRef database_;
};

} // namespace kova::host
