#pragma once

#include <QColor>
#include <QRectF>

#include <functional>
#include <string_view>

class QPainter;

namespace kova::qt {

/// What tells one kept picture from another, beside its size. The name must live as long as the program.
struct PictureKey {
    std::string_view name;
    QColor color;
    double detail = 0;
};

/// Draws into the area through a picture that is kept in the screen's own pixels: stroking and rounding a
/// path costs far more than laying down its picture, and the buttons of a row follow the mouse. `draw`
/// draws it from the origin on, at the size in pixels and the scale that it is given. Where the painter
/// does more than move and scale, nothing is kept.
void PaintKept(QPainter& painter, const QRectF& area, const PictureKey& key,
               const std::function<void(QPainter& painter, const QRectF& area, double scale)>& draw);

} // namespace kova::qt
