#include "host/shell/icon.hpp"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace kova::host {

namespace {

/// Lengths are for a picture of that many points.
constexpr double Design = 64;
constexpr QColor Cover(38, 110, 224);
constexpr QColor Rings(22, 66, 140);

/// Centre, and half the width and height.
struct Oval {
    QPointF centre;
    double width;
    double height;
};

constexpr Oval Paw[] = {
    {{20.5, 36}, 4, 5}, {{28, 29}, 4.2, 5.6}, {{36, 29}, 4.2, 5.6}, {{43.5, 36}, 4, 5}, {{32, 45}, 9.5, 7.5},
};

void Paint(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Cover);
    painter.drawRoundedRect(QRectF(4, 7, 56, 54), 9, 9);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(9, 20, 46, 36), 4, 4);
    painter.setBrush(Rings);
    for (const double left : {16.0, 42.0})
        painter.drawRoundedRect(QRectF(left, 3, 6, 11), 3, 3);
    painter.setBrush(Cover);
    for (const Oval& oval : Paw)
        painter.drawEllipse(oval.centre, oval.width, oval.height);
}

} // namespace

QIcon ApplicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.scale(size / Design, size / Design);
        Paint(painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace kova::host
