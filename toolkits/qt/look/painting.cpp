#include "toolkits/qt/look/painting.hpp"

#include "toolkits/qt/look/kept_picture.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace kova::qt {

namespace {

QColor BorderOf(const FieldState& state)
{
    if (!state.enabled)
        return look::Rule;
    if (state.focused)
        return look::Accent;
    return state.underMouse && !state.locked ? look::BorderUnderMouse : look::Border;
}

} // namespace

void PaintField(QPainter& painter, const QRectF& area, const FieldState& state, const QColor& paper)
{
    const double width = state.focused ? 2.0 : 1.0;
    const QRectF edge = area.adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(BorderOf(state), width));
    painter.setBrush(state.enabled ? paper : look::LockedPaper);
    painter.drawRoundedRect(edge, look::CornerRadius, look::CornerRadius);
    painter.restore();
}

void PaintFocusRing(QPainter& painter, const QRectF& area, const QColor& ground)
{
    const bool standsOut = Contrast(ground, look::Accent) >= 2.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(standsOut ? look::Accent : look::Ink, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), look::CornerRadius, look::CornerRadius);
    if (!standsOut || Contrast(ground, look::Paper) >= 2.5) {
        painter.setPen(QPen(look::Paper, 1.0));
        painter.drawRoundedRect(area.adjusted(2.5, 2.5, -2.5, -2.5), look::CornerRadius - 1,
                                look::CornerRadius - 1);
    }
    painter.restore();
}

void PaintPlate(QPainter& painter, const QRectF& area, const QColor& color, double radius)
{
    PaintKept(painter, area, {"plate", color, radius},
              [&](QPainter& inside, const QRectF& place, double scale) {
                  inside.setPen(Qt::NoPen);
                  inside.setBrush(color);
                  inside.drawRoundedRect(place, radius * scale, radius * scale);
              });
}

QRect RoomForPopup(const QRect& fieldOnScreen)
{
    constexpr int edge = 1;
    const QScreen* screen = QGuiApplication::screenAt(fieldOnScreen.center());
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    return room.adjusted(edge, edge, -edge, -edge);
}

} // namespace kova::qt
