#pragma once

#include "toolkits/common/toolkit.hpp"
#include "toolkits/qt/top_window.hpp"

#include <memory>

namespace kova::reports {
struct Document;
}

namespace kova::qt {

class InputGate;
class ReportDesk;

/// Handles for the host: see handles.hpp.
Long HandleOf(QWidget& widget);

/// The toolkit on Qt's widgets. A QApplication must exist; it gets the product's look, the
/// light one where none was chosen with ApplyLook. One per process.
class QtToolkit : public toolkit::ToolkitModel {
public:
    /// The clock gives the calendars their "today" and must outlive the toolkit.
    explicit QtToolkit(const Clock& clock);
    ~QtToolkit() override;

    /// The host's main window: dialogs are centred over it while none of its windows is active.
    void RegisterTopWindow(QWidget* window) { top_.Register(window); }
    Double Seconds() const override { return clock_.Timer(); }

    void ProcessPendingEvents() override;
    Twips ScreenWidth() const override;
    Twips TwipsPerPixelX() const override { return 15; }
    void SetRoundRectRegion(Long handle, int ellipseWidth, int ellipseHeight) override;

    std::unique_ptr<toolkit::FormWindow> MakeWindow(toolkit::FormModel& form) override;
    std::unique_ptr<toolkit::View> MakeView(toolkit::WidgetCore& widget) override;
    const toolkit::TextMeasure& Measure() const override;
    Long HandleOf(const toolkit::WidgetCore& widget) override;
    /// Shows the failure's text in a box.
    void UnhandledFailure(const Failure& failure) override;

protected:
    Reply AskUser(MessageKind kind, const Text& text, const Text& title) override;
    void ShowKeys(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys) override;
    void RunPreview(const toolkit::ReportModel& report) override;
    /// Shows a report that has been laid out, until the user has closed it.
    void ShowPreview(const toolkit::ReportModel& report, const reports::Document& pages);
    /// What a preview asks of the desktop.
    virtual std::unique_ptr<ReportDesk> MakeReportDesk() const;
    void ScheduleRelease() override;
    void EventsEnded() override;
    void InputAwaited() override;
    const TopWindow& Top() const { return top_; }

private:
    const Clock& clock_;
    TopWindow top_;
    std::unique_ptr<toolkit::TextMeasure> measure_;
    std::unique_ptr<InputGate> gate_;
};

} // namespace kova::qt
