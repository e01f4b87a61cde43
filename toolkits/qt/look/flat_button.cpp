#include "toolkits/qt/look/flat_button.hpp"

#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr double IconSize = 20;
constexpr double IconInset = 10;
constexpr double Gap = 6;

} // namespace

FlatButton::FlatButton(QWidget* parent) : QAbstractButton(parent), radius_(look::CornerRadius)
{
    colours_ = {look::Paper, look::AccentTint, look::Ink, look::Ink};
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

void FlatButton::SetColours(const ButtonColours& colours)
{
    colours_ = colours;
    update();
}

void FlatButton::SetIconName(const std::string& name)
{
    icon_ = name;
    update();
}

void FlatButton::SetBordered(bool bordered)
{
    bordered_ = bordered;
    update();
}

void FlatButton::SetCornerRadius(double radius)
{
    radius_ = radius;
    update();
}

void FlatButton::keyPressEvent(QKeyEvent* event)
{
    // An arrow key is for what holds the button, such as a bar; by itself a button would walk away.
    if (event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down)
        return event->ignore();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers() == Qt::NoModifier && !event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void FlatButton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void FlatButton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

QColor FlatButton::Ground() const
{
    if (!isEnabled())
        return look::DisabledPlate;
    if (isDown())
        return colours_.highlight.darker(112);
    return underMouse() ? colours_.highlight : colours_.ground;
}

QColor FlatButton::InkOn(const QColor& ground) const
{
    if (!isEnabled())
        return look::DisabledInk;
    // A white text on a light ground is meant for icons of dark buttons: the ink reads better.
    const QColor& wanted = underMouse() || isDown() ? colours_.highlightText : colours_.text;
    if (Contrast(wanted, ground) >= (CurrentLook() == Look::Dark ? LeastTextContrast : 1.9))
        return wanted;
    return Contrast(look::Ink, ground) >= Contrast(look::Paper, ground) ? look::Ink : look::Paper;
}

void FlatButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor ground = Ground();
    PaintPlate(painter, rect(), ground, radius_);
    if (bordered_ || (!isEnabled() && !text().trimmed().isEmpty())) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(look::Border, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius_, radius_);
    }
    PaintContent(painter, ground);
    if (hasFocus())
        PaintFocusRing(painter, rect(), ground);
}

void FlatButton::PaintContent(QPainter& painter, const QColor& ground) const
{
    const QString caption = text().trimmed();
    const QRectF area = rect();
    const bool hasIcon = HasIcon(icon_);
    const QColor ink = InkOn(ground);
    painter.setPen(ink);
    painter.setFont(font());
    if (caption.isEmpty()) {
        const QColor tint = isEnabled() && Contrast(IconTint(icon_), ground) >= 2.5 ? IconTint(icon_) : ink;
        const QSizeF size(IconSize, IconSize);
        PaintIcon(painter, icon_, QRectF(area.center() - QPointF(IconSize / 2, IconSize / 2), size), tint);
    } else if (!hasIcon) {
        painter.drawText(area, Qt::AlignCenter, caption);
    } else {
        const double textWidth = QFontMetricsF(font()).horizontalAdvance(caption);
        const double left = std::max(IconInset, (area.width() - textWidth - IconSize - Gap) / 2);
        PaintIcon(painter, icon_, QRectF(left, (area.height() - IconSize) / 2, IconSize, IconSize), ink);
        painter.drawText(area.adjusted(left + IconSize + Gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         caption);
    }
}

} // namespace kova::qt
