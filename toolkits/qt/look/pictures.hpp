#pragma once

#include "agenda/contracts/widgets/image.hpp"

#include <QRectF>
#include <QString>

class QPainter;

/// The store of pictures: the coloured labels that tell an appointment's situation.
namespace kova::qt {

/// Size of every label, in pixels (1800 by 330 twips).
inline constexpr QSizeF PictureSize(120, 22);

/// What a picture says, such as "Agendado"; "" for an unknown one.
QString PictureText(const Picture& picture);

/// Draws the picture at that place and size. An unknown name draws nothing.
void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& place);

} // namespace kova::qt
