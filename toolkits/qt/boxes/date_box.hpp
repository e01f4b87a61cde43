#pragma once

#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/qt/boxes/calendar.hpp"
#include "toolkits/qt/boxes/mask_view.hpp"

namespace kova::qt {

/// A date box: the mask, and a calendar that drops down by its button, F4 or Alt+Down.
class DateBoxView : public MaskView {
public:
    DateBoxView(QtToolkit& toolkit, toolkit::DateBoxModel& model, QWidget* parent);

    /// The open calendar; null where it is closed.
    CalendarPopup* Calendar() const { return calendar_; }

protected:
    bool TakesKey(const QKeyEvent& event) override;

private:
    void OpenCalendar();

    toolkit::DateBoxModel& model_;
    QPointer<CalendarPopup> calendar_;
};

} // namespace kova::qt
