#pragma once

#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/qt/boxes/mask_view.hpp"

namespace kova {
class Clock;
}

namespace kova::qt {

class CalendarPopup;

/// A date box: the mask, and a calendar that drops down by its button, F4 or Alt+Down.
class DateBoxView : public MaskView {
public:
    /// The clock gives the calendar its "today" and must outlive the view.
    DateBoxView(const Clock& clock, toolkit::DateBoxModel& model, QWidget* parent);

    /// The open calendar; null where it is closed.
    CalendarPopup* Calendar() const;

protected:
    bool TakesKey(const QKeyEvent& event) override;

private:
    void OpenCalendar();

    const Clock& clock_;
    toolkit::DateBoxModel& model_;
    QPointer<CalendarPopup> calendar_;
};

} // namespace kova::qt
