#include "toolkits/qt/boxes/calendar.hpp"

#include "toolkits/qt/burial.hpp"
#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace kova::qt {

namespace {

constexpr int Margin = 10;
constexpr int HeadHeight = 34;
constexpr int WeekHeight = 24;
constexpr int CellWidth = 36;
constexpr int CellHeight = 30;
constexpr int FootHeight = 38;
constexpr int DaysShown = 42;
constexpr int DaysPerWeek = 7;
constexpr Date FirstDate{1900, 1, 1};
constexpr Date LastDate{2999, 12, 31};

constexpr std::array<const char*, 12> MonthNames{"janeiro",  "fevereiro", "março",    "abril",
                                                 "maio",     "junho",     "julho",    "agosto",
                                                 "setembro", "outubro",   "novembro", "dezembro"};
constexpr std::array<const char*, 7> DayNames{"dom", "seg", "ter", "qua", "qui", "sex", "sáb"};

QString MonthTitle(Date date)
{
    const char* const name = MonthNames.at(static_cast<std::size_t>(date.month - 1));
    return QString::fromUtf8(name) + QStringLiteral(" de ") + QString::number(date.year);
}

QRectF PreviousArea() { return QRectF(Margin, Margin, HeadHeight, HeadHeight); }
QRectF NextArea()
{
    return QRectF(Margin + DaysPerWeek * CellWidth - HeadHeight, Margin, HeadHeight, HeadHeight);
}
QRectF TodayArea()
{
    const int top = Margin + HeadHeight + WeekHeight + DaysShown / DaysPerWeek * CellHeight + 8;
    return QRectF(Margin, top, DaysPerWeek * CellWidth, FootHeight - 8);
}

} // namespace

CalendarPopup::CalendarPopup(QWidget* parent, Date today, std::function<void(Date)> choose)
    : QWidget(parent, Qt::Popup), today_(today), current_(today), choose_(std::move(choose))
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Calendário"));
    resize(sizeHint());
}

QSize CalendarPopup::sizeHint() const
{
    return QSize(2 * Margin + DaysPerWeek * CellWidth, static_cast<int>(TodayArea().bottom()) + Margin);
}

void CalendarPopup::Open(const QRect& fieldOnScreen, Date current)
{
    MoveTo(current);
    const QRect room = RoomForPopup(fieldOnScreen);
    QPoint place(fieldOnScreen.left(), fieldOnScreen.bottom() + 3);
    if (place.y() + height() > room.bottom())
        place.setY(fieldOnScreen.top() - height() - 2);
    // Where there is room neither below nor above, it covers the field.
    place.setY(std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())));
    move(place);
    show();
    setFocus();
}

Date CalendarPopup::FirstDayShown() const
{
    const Date first{current_.year, current_.month, 1};
    return AddDays(first, 1 - Weekday(first));
}

QRectF CalendarPopup::DayCell(int position) const
{
    const int week = position / DaysPerWeek;
    const int day = position % DaysPerWeek;
    return QRectF(Margin + day * CellWidth, Margin + HeadHeight + WeekHeight + week * CellHeight, CellWidth,
                  CellHeight);
}

CalendarPopup::Hit CalendarPopup::HitAt(const QPointF& place) const
{
    if (PreviousArea().contains(place))
        return {Spot::Previous, {}};
    if (NextArea().contains(place))
        return {Spot::Next, {}};
    if (TodayArea().contains(place))
        return {Spot::Today, {}};
    for (int position = 0; position < DaysShown; ++position) {
        if (DayCell(position).contains(place))
            return {Spot::Day, AddDays(FirstDayShown(), position)};
    }
    return {};
}

void CalendarPopup::MoveTo(Date day)
{
    current_ = std::clamp(day, FirstDate, LastDate);
    setAccessibleDescription(FromText(FormatDate(current_)));
    update();
}

void CalendarPopup::MoveByMonths(int months)
{
    const int month = current_.year * 12 + current_.month - 1 + months;
    const int year = month / 12;
    MoveTo({year, month % 12 + 1, std::min(current_.day, DaysOfMonth(year, month % 12 + 1))});
}

void CalendarPopup::Choose(Date day)
{
    const auto choose = choose_;
    close();
    if (choose && day >= FirstDate && day <= LastDate)
        choose(day);
}

void CalendarPopup::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left: return MoveTo(AddDays(current_, -1));
    case Qt::Key_Right: return MoveTo(AddDays(current_, 1));
    case Qt::Key_Up: return MoveTo(AddDays(current_, -DaysPerWeek));
    case Qt::Key_Down: return MoveTo(AddDays(current_, DaysPerWeek));
    case Qt::Key_PageUp: return MoveByMonths(event->modifiers() & Qt::ShiftModifier ? -12 : -1);
    case Qt::Key_PageDown: return MoveByMonths(event->modifiers() & Qt::ShiftModifier ? 12 : 1);
    case Qt::Key_Home: return MoveTo({current_.year, current_.month, 1});
    case Qt::Key_End:
        return MoveTo({current_.year, current_.month, DaysOfMonth(current_.year, current_.month)});
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: return Choose(current_);
    case Qt::Key_H:
    case Qt::Key_T: return Choose(today_);
    case Qt::Key_Escape:
    case Qt::Key_F4: close(); break;
    default: event->accept();
    }
}

void CalendarPopup::mousePressEvent(QMouseEvent* event)
{
    if (!rect().contains(event->position().toPoint()))
        close();
    const Hit hit = HitAt(event->position());
    switch (hit.spot) {
    case Spot::Previous: return MoveByMonths(-1);
    case Spot::Next: return MoveByMonths(1);
    case Spot::Today: return Choose(today_);
    case Spot::Day: return Choose(hit.day);
    case Spot::None: return;
    }
}

void CalendarPopup::mouseMoveEvent(QMouseEvent* event)
{
    const Hit hit = HitAt(event->position());
    if (hit != hover_) {
        hover_ = hit;
        update();
    }
}

// By a day, by Escape, or by Qt itself for a press elsewhere.
void CalendarPopup::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    Bury(*this);
}

void CalendarPopup::leaveEvent(QEvent*)
{
    hover_ = {};
    update();
}

void CalendarPopup::wheelEvent(QWheelEvent* event)
{
    const int turned = event->angleDelta().y();
    if (turned > 0)
        MoveByMonths(-1);
    else if (turned < 0)
        MoveByMonths(1);
    event->accept();
}

void CalendarPopup::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), look::Paper);
    painter.setPen(QPen(look::Border, 1));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    PaintHead(painter);
    for (int position = 0; position < DaysShown; ++position)
        PaintDay(painter, position);
    PaintFoot(painter);
}

void CalendarPopup::PaintHead(QPainter& painter) const
{
    const auto arrow = [&](const QRectF& area, Spot spot, std::string_view icon) {
        if (hover_.spot == spot)
            PaintPlate(painter, area.adjusted(2, 2, -2, -2), look::AccentTint, look::CornerRadius);
        PaintIcon(painter, icon, QRectF(area.center() - QPointF(9, 9), QSizeF(18, 18)), look::Ink);
    };
    arrow(PreviousArea(), Spot::Previous, "anterior");
    arrow(NextArea(), Spot::Next, "posterior");
    painter.setPen(look::Ink);
    painter.setFont(MakeFont("Arial", 10.5, true));
    painter.drawText(QRectF(Margin, Margin, DaysPerWeek * CellWidth, HeadHeight), Qt::AlignCenter,
                     MonthTitle(current_));
    painter.setPen(look::MutedInk);
    painter.setFont(MakeFont("Arial", 8.25));
    for (int day = 0; day < DaysPerWeek; ++day) {
        const QRectF area(Margin + day * CellWidth, Margin + HeadHeight, CellWidth, WeekHeight);
        painter.drawText(area, Qt::AlignCenter,
                         QString::fromUtf8(DayNames.at(static_cast<std::size_t>(day))));
    }
}

void CalendarPopup::PaintDay(QPainter& painter, int position) const
{
    const Date day = AddDays(FirstDayShown(), position);
    const QRectF plate = DayCell(position).adjusted(3, 1.5, -3, -1.5);
    const bool chosen = day == current_;
    if (chosen)
        PaintPlate(painter, plate, look::Accent, look::CornerRadius);
    else if (hover_.spot == Spot::Day && hover_.day == day)
        PaintPlate(painter, plate, look::AccentTint, look::CornerRadius);
    if (day == today_ && !chosen) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(look::Accent, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(plate.adjusted(0.5, 0.5, -0.5, -0.5), look::CornerRadius, look::CornerRadius);
    }
    const QColor ink = day.month == current_.month ? look::Ink : look::DisabledInk;
    painter.setPen(chosen ? look::Paper : ink);
    painter.setFont(MakeFont("Arial", 9.75, day == today_));
    painter.drawText(plate, Qt::AlignCenter, QString::number(day.day));
}

void CalendarPopup::PaintFoot(QPainter& painter) const
{
    const QRectF area = TodayArea();
    PaintPlate(painter, area, hover_.spot == Spot::Today ? look::AccentTint : look::Plate,
               look::CornerRadius);
    painter.setPen(look::Accent);
    painter.setFont(MakeFont("Arial", 9.75, true));
    painter.drawText(area, Qt::AlignCenter, QStringLiteral("Hoje"));
}

} // namespace kova::qt
