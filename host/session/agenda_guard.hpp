#pragma once

#include "family/users/user_rights.hpp"
#include "toolkits/common/guard.hpp"

#include <functional>
#include <string_view>

namespace kova::toolkit {
class ToolkitModel;
}

namespace kova::host {

/// Shuts on the screens of the agenda what whoever is at the desk may not do. The agenda knows nothing of it;
/// its components refuse the same, whatever a screen lets through.
class AgendaGuard {
public:
    /// Asked at each Look; where it fails with a Failure the rights stay as they were.
    using AskRights = std::function<family::DeniedRights()>;

    /// The toolkit must outlive it. Nothing is shut before the first Look.
    AgendaGuard(toolkit::ToolkitModel& toolkit, AskRights ask);
    ~AgendaGuard();
    AgendaGuard(const AgendaGuard&) = delete;
    AgendaGuard& operator=(const AgendaGuard&) = delete;

    /// Somebody else is at the desk, or has other rights.
    void Look();
    bool MaySeePrices() const { return !denied_.contains(family::Right::SeePrices); }
    /// As of the last Look.
    const family::DeniedRights& Denied() const { return denied_; }

private:
    Text Why(const toolkit::GuardedControl& control) const;
    Text WhyNotSaved(std::string_view form) const;

    toolkit::ToolkitModel& toolkit_;
    AskRights ask_;
    family::DeniedRights denied_;
};

} // namespace kova::host
