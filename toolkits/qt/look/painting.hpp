#pragma once

#include <QColor>
#include <QRect>
#include <QRectF>

class QPainter;

/// Strokes and grounds that several views share. All lengths are logical pixels; lines are placed so
/// that they stay crisp also where the screen is scaled by a fraction.
namespace kova::qt {

struct FieldState {
    bool enabled = true;
    bool locked = false;
    bool underMouse = false;
    bool focused = false;
};

/// Ground and rounded border of an input field, with the focus ring.
void PaintField(QPainter& painter, const QRectF& area, const FieldState& state, const QColor& paper);

/// The ring inside a control's edge that shows the keyboard's focus on any ground.
void PaintFocusRing(QPainter& painter, const QRectF& area, const QColor& ground);

/// What a popup at a field may take: all of the field's screen but for a narrow edge.
QRect RoomForPopup(const QRect& fieldOnScreen);

/// A filled rounded plate.
void PaintPlate(QPainter& painter, const QRectF& area, const QColor& color, double radius);

} // namespace kova::qt
