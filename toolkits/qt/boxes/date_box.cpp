#include "toolkits/qt/boxes/date_box.hpp"

#include "agenda/contracts/platform.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/qt/boxes/calendar.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"

#include <QKeyEvent>

#include <algorithm>

namespace kova::qt {

DateBoxView::DateBoxView(const Clock& clock, toolkit::DateBoxModel& model, QWidget* parent)
    : MaskView(model, parent), clock_(clock), model_(model)
{
    // Where F4 is the key of a control of the form, the box never sees it.
    const auto& controls = model.GetForm().Design().controls;
    const bool isTaken = std::any_of(controls.begin(), controls.end(),
                                     [](const ControlDesign& control) { return control.shortcut == "F4"; });
    Shown().SetEndIcon("calendario",
                       isTaken ? QStringLiteral("Abre o calendário com Alt+↓")
                               : QStringLiteral("Abre o calendário com F4"));
    Shown().endPressed = [this] { OpenCalendar(); };
    Editor()->setInputMethodHints(Qt::ImhDate);
}

CalendarPopup* DateBoxView::Calendar() const { return calendar_; }

bool DateBoxView::TakesKey(const QKeyEvent& event)
{
    const bool altDown = event.key() == Qt::Key_Down && (event.modifiers() & Qt::AltModifier);
    if (event.key() != Qt::Key_F4 && !altDown)
        return false;
    OpenCalendar();
    return true;
}

void DateBoxView::OpenCalendar()
{
    model_.UserFocuses();
    if (calendar_ || !model_.HasFocus() || !model_.TakesInput())
        return;
    const Date today = clock_.Now().date;
    calendar_ = new CalendarPopup(&Shown(), today, [this](Date day) { model_.UserPicks(day); });
    calendar_->Open(QRect(Shown().mapToGlobal(QPoint(0, 0)), Shown().size()),
                    model_.ShownDate().value_or(today));
}

} // namespace kova::qt
