#pragma once

namespace kova::toolkit {

class AccessObserver;
class ReportModel;

/// What a report asks of the toolkit that has made it.
class ReportOwner {
public:
    virtual ~ReportOwner() = default;

    /// May be null.
    virtual AccessObserver* Observer() const = 0;
    /// Shows the report and waits until the user has closed it.
    virtual void Preview(const ReportModel& report) = 0;
};

} // namespace kova::toolkit
