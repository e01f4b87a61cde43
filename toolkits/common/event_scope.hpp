#pragma once

namespace kova::toolkit {

class ToolkitModel;

/// An event on the stack. No form is destroyed before the outermost one has ended.
class EventScope {
public:
    explicit EventScope(ToolkitModel& toolkit);
    ~EventScope();
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;

private:
    ToolkitModel& toolkit_;
};

} // namespace kova::toolkit
