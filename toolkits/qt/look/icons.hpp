#pragma once

#include <QColor>
#include <QRectF>

#include <string_view>

class QPainter;

/// The store of icons: line drawings that stay sharp at every scale.
namespace kova::qt {

/// Whether the store has an icon of that name.
bool HasIcon(std::string_view name);

/// The icon's own colour on a light ground, such as green for "atendido"; the ink where it has none.
QColor IconTint(std::string_view name);

/// Draws the icon into a square, in one colour. An unknown name draws nothing.
void PaintIcon(QPainter& painter, std::string_view name, const QRectF& square, const QColor& color);

} // namespace kova::qt
