#pragma once

#include "toolkits/common/toolkit.hpp"
#include "toolkits/headless/clock.hpp"
#include "toolkits/headless/queue_driver.hpp"
#include "toolkits/headless/report_metrics.hpp"
#include "toolkits/headless/text_measure.hpp"
#include "toolkits/headless/window_host.hpp"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kova::headless {

/// The toolkit without a screen: widgets live in memory, a Driver plays the user wherever the event loop
/// would run, and time stands still. One pixel is 15 twips.
class HeadlessToolkit final : public toolkit::ToolkitModel, private WindowHost {
public:
    /// The ellipse of the last call of SetRoundRectRegion for a window, in pixels.
    struct Corners {
        int ellipseWidth = 0;
        int ellipseHeight = 0;
        int calls = 0;
    };

    HeadlessToolkit();
    ~HeadlessToolkit() override;

    FrozenClock& Clock() { return clock_; }
    Double Seconds() const override { return clock_.Timer(); }
    void ScreenWidthInPixels(int pixels) { screenWidth_ = pixels; }

    /// A window of the host with that inner size; answers its handle.
    Long CreateContainer(Twips width, Twips height);
    /// Gives a container another inner size, and the forms in it their Resize. Fails with 5 where there is
    /// no such container.
    void ResizeContainer(Long handle, Twips width, Twips height);
    /// Closes a container, and with it the forms in it. Fails with 5 where there is no such container.
    void DestroyContainer(Long handle);

    /// The driver of the tests, in use until SetDriver names another one.
    QueueDriver& Queue() { return queue_; }
    /// Null goes back to the queues. The driver must stay valid.
    void SetDriver(Driver* driver) { driver_ = driver; }

    /// What forms and boxes did, one line each: "show frmLista", "show NAME modal", "hide NAME",
    /// "unload NAME", "repaint NAME", "focus NAME.CONTROL", "popup MENU X Y", "keys TEXT", "pause 1",
    /// "box information TITLE TEXT -> ok", "unhandled NUMBER TEXT", "help NAME", followed by
    /// "  KEY: PURPOSE" for each of its keys; "report NAME modal caption TEXT width W margins LEFT TOP
    /// RIGHT BOTTOM landscape records N pages N".
    const std::vector<std::string>& Log() const { return log_; }
    void ClearLog() { log_.clear(); }
    /// Hears each line of the log as it comes.
    void OnLine(std::function<void(const std::string&)> listener) { listener_ = std::move(listener); }

    /// Nothing where the window's corners were never rounded.
    std::optional<Corners> CornersOf(Long handle) const;
    /// Failures that handlers started by the user let out.
    const std::vector<Failure>& UnhandledFailures() const { return failures_; }

    void ProcessPendingEvents() override;
    void PauseBegins(Double seconds) override;
    void PauseEnds() override;
    Twips ScreenWidth() const override;
    Twips TwipsPerPixelX() const override { return 15; }
    void SetRoundRectRegion(Long handle, int ellipseWidth, int ellipseHeight) override;

    std::unique_ptr<toolkit::FormWindow> MakeWindow(toolkit::FormModel& form) override;
    std::unique_ptr<toolkit::View> MakeView(toolkit::WidgetCore& widget) override;
    const toolkit::TextMeasure& Measure() const override { return measure_; }
    Long HandleOf(const toolkit::WidgetCore& widget) override;
    void UnhandledFailure(const Failure& failure) override;

    void FormShows(const toolkit::FormModel& form, ShowMode mode) override;
    void FormHides(const toolkit::FormModel& form) override;
    void FormUnloads(const toolkit::FormModel& form) override;
    void FormRepaints(const toolkit::FormModel& form) override;
    void CodeFocuses(const toolkit::WidgetCore& widget) override;
    void FormPopsUp(const toolkit::FormModel& form, const toolkit::MenuModel& parent, Twips x,
                    Twips y) override;
    void KeysAreSent(const Text& keys) override;

protected:
    Reply AskUser(MessageKind kind, const Text& text, const Text& title) override;
    void ShowKeys(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys) override;
    void RunPreview(const toolkit::ReportModel& report) override;

private:
    struct Container {
        toolkit::InnerSize inner;
        std::vector<toolkit::FormModel*> forms;
    };
    struct Window {
        const toolkit::FormModel* form = nullptr;
        /// Null for the form's own window.
        const toolkit::WidgetCore* panel = nullptr;
        std::optional<Corners> corners;
    };
    struct Pause {
        Double seconds = 0;
        bool asked = false;
    };

    std::optional<toolkit::InnerSize> JoinContainer(Long handle, toolkit::FormModel& form) override;
    void Forget(Long handle, toolkit::FormModel& form) override;
    Driver& GetDriver() override { return driver_ ? *driver_ : queue_; }

    void Write(std::string line);
    void LogPause(Double seconds);
    void LogReport(const toolkit::ReportModel& report, const reports::Document& pages);

    FrozenClock clock_;
    TableMeasure measure_;
    TableMetrics reportMetrics_{measure_};
    QueueDriver queue_;
    Driver* driver_ = nullptr;
    int screenWidth_ = 1920;
    Long nextHandle_ = 1001;
    std::map<Long, Container> containers_;
    std::map<Long, Window> windows_;
    std::vector<Pause> pauses_;
    std::vector<std::string> log_;
    std::function<void(const std::string&)> listener_;
    std::vector<Failure> failures_;
};

} // namespace kova::headless
