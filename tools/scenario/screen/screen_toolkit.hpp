#pragma once

#include "toolkits/headless/clock.hpp"
#include "toolkits/headless/report_metrics.hpp"
#include "toolkits/headless/text_measure.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/screen/toolkit.hpp"
#include "tools/hand/hand.hpp"
#include "tools/scenario/player.hpp"
#include "tools/scenario/screen/pump.hpp"

#include <functional>
#include <string>
#include <vector>

namespace kova::scenario {

/// The screen toolkit under a script: it tells what forms and boxes do, measures texts by the table that is
/// the same everywhere, and lets the player act in its loops.
class ScreenToolkit final : public qt::QtToolkit {
public:
    ScreenToolkit(headless::FrozenClock& clock, Pump& pump) : QtToolkit(clock), clock_(clock), pump_(pump) { }
    ~ScreenToolkit() override;

    void SetPlayer(Player& player) { player_ = &player; }
    void OnLine(std::function<void(const std::string&)> listener) { line_ = std::move(listener); }
    void WidthInPixels(int pixels) { width_ = pixels; }
    /// The container as the module knows it: by a number that is the same in every run. Answers the number.
    Long NumberOf(QWidget& container);
    /// The script has ended: forms that wait for their end go now, and those that follow at once.
    void Release();
    bool HasFailed() const { return hasFailed_; }

    void ProcessPendingEvents() override;
    void PauseBegins(Double seconds) override;
    void PauseEnds() override;
    Twips ScreenWidth() const override { return static_cast<Twips>(width_) * TwipsPerPixelX(); }
    std::unique_ptr<toolkit::FormWindow> MakeWindow(toolkit::FormModel& form) override;
    const toolkit::TextMeasure& Measure() const override { return measure_; }
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
    void ScheduleRelease() override;

private:
    friend class ScriptedWindow;

    struct Pause {
        Double seconds = 0;
        bool asked = false;
    };

    headless::FrozenClock& clock_;
    Pump& pump_;
    hand::Hand hand_;
    headless::TableMeasure measure_;
    headless::TableMetrics reportMetrics_{measure_};
    Player* player_ = nullptr;
    std::function<void(const std::string&)> line_ = [](const std::string&) {};
    int width_ = 1920;
    Long containerHandle_ = 0;
    std::vector<Pause> pauses_;
    bool hasFailed_ = false;
    bool isClosing_ = false;
};

} // namespace kova::scenario
