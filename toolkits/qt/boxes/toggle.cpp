#include "toolkits/qt/boxes/toggle.hpp"

#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr double Size = 16;
constexpr double Gap = 7;
constexpr double RingWidth = 3;

} // namespace

Toggle::Toggle(QWidget* parent, Mark mark) : QAbstractButton(parent), mark_(mark)
{
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

void Toggle::SetValue(int value)
{
    value_ = value;
    // What assistive tools read; `value_` is what is painted.
    setCheckable(true);
    setChecked(value != 0);
    update();
}

// Called where a press has been completed: the model decides what comes of it.
void Toggle::nextCheckState()
{
    if (pressed)
        pressed();
}

void Toggle::keyPressEvent(QKeyEvent* event)
{
    // The space bar presses. Arrow keys would walk away from the model's focus.
    if (event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down)
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

void Toggle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = std::min({Size, height() - 2.0, width() - 2.0});
    const double left = text().isEmpty() ? (width() - size) / 2 : 1;
    QRectF square(left, (height() - size) / 2, size, size);
    // A box of a mark's own size has room for the ring only inside.
    const bool isBare = text().isEmpty();
    if (isBare && hasFocus())
        square.adjust(RingWidth, RingWidth, -RingWidth, -RingWidth);
    if (mark_ == Mark::Box)
        PaintBox(painter, square);
    else
        PaintCircle(painter, square);
    if (hasFocus())
        PaintFocusRing(painter,
                       isBare ? square.adjusted(-RingWidth - 1, -RingWidth - 1, RingWidth + 1, RingWidth + 1)
                              : QRectF(rect()),
                       look::Paper);
    painter.setPen(isEnabled() ? look::Ink : look::DisabledInk);
    painter.setFont(font());
    painter.drawText(QRectF(rect()).adjusted(square.right() + Gap, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     text());
}

void Toggle::PaintBox(QPainter& painter, const QRectF& square) const
{
    const bool marked = value_ != 0;
    const QColor fill = isEnabled() ? look::Accent : look::DisabledInk;
    painter.setPen(QPen(marked ? fill : (underMouse() ? look::Accent : look::BorderUnderMouse), 1.2));
    painter.setBrush(marked ? fill : look::Paper);
    painter.drawRoundedRect(square.adjusted(0.6, 0.6, -0.6, -0.6), 3, 3);
    if (!marked)
        return;
    painter.setPen(QPen(look::Paper, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](double x, double y) {
        return QPointF(square.left() + x * square.width(), square.top() + y * square.height());
    };
    if (value_ == 2)
        painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
    else
        painter.drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.7), at(0.77, 0.31)});
}

void Toggle::PaintCircle(QPainter& painter, const QRectF& square) const
{
    const bool marked = value_ != 0;
    const QColor fill = isEnabled() ? look::Accent : look::DisabledInk;
    painter.setPen(QPen(marked ? fill : (underMouse() ? look::Accent : look::BorderUnderMouse), 1.2));
    painter.setBrush(look::Paper);
    painter.drawEllipse(square.adjusted(0.6, 0.6, -0.6, -0.6));
    if (!marked)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawEllipse(square.center(), square.width() * 0.28, square.height() * 0.28);
}

} // namespace kova::qt
