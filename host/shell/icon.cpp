#include "host/shell/icon.hpp"

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QRectF>

namespace kova::host {

namespace {

/// Lengths are for a picture of that many points.
constexpr int Design = 64;
constexpr QColor Cover(38, 110, 224);
constexpr QColor Page(255, 255, 255);
constexpr QColor Rings(22, 66, 140);

struct Shape {
    QRectF place;
    /// Of the corners; one that is round altogether is an ellipse.
    double radius;
    QColor colour;

    bool IsOval() const { return radius == 0; }
};

constexpr Shape Oval(double x, double y, double halfWidth, double halfHeight)
{
    return {QRectF(x - halfWidth, y - halfHeight, 2 * halfWidth, 2 * halfHeight), 0, Cover};
}

/// From the lowest to the uppermost.
constexpr Shape Shapes[] = {
    {QRectF(4, 7, 56, 54), 9, Cover},
    {QRectF(9, 20, 46, 36), 4, Page},
    {QRectF(16, 3, 6, 11), 3, Rings},
    {QRectF(42, 3, 6, 11), 3, Rings},
    Oval(20.5, 36, 4, 5),
    Oval(28, 29, 4.2, 5.6),
    Oval(36, 29, 4.2, 5.6),
    Oval(43.5, 36, 4, 5),
    Oval(32, 45, 9.5, 7.5),
};

void Paint(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const Shape& shape : Shapes) {
        painter.setBrush(shape.colour);
        if (shape.IsOval())
            painter.drawEllipse(shape.place);
        else
            painter.drawRoundedRect(shape.place, shape.radius, shape.radius);
    }
}

QString TextOf(const Shape& shape)
{
    const QRectF& at = shape.place;
    const QString text = shape.IsOval()
        ? QStringLiteral("<ellipse cx=\"%1\" cy=\"%2\" rx=\"%3\" ry=\"%4\"")
              .arg(at.center().x())
              .arg(at.center().y())
              .arg(at.width() / 2)
              .arg(at.height() / 2)
        : QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" rx=\"%5\"")
              .arg(at.x())
              .arg(at.y())
              .arg(at.width())
              .arg(at.height())
              .arg(shape.radius);
    return text + QStringLiteral(" fill=\"%1\"/>\n").arg(shape.colour.name());
}

} // namespace

QIcon ApplicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(QPixmap::fromImage(ApplicationPicture(size)));
    return icon;
}

QImage ApplicationPicture(int size)
{
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(static_cast<double>(size) / Design, static_cast<double>(size) / Design);
    Paint(painter);
    return picture;
}

QString ApplicationDrawing()
{
    QString text = QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %1\" "
                                  "width=\"%1\" height=\"%1\">\n")
                       .arg(Design);
    for (const Shape& shape : Shapes)
        text += TextOf(shape);
    return text + QStringLiteral("</svg>\n");
}

} // namespace kova::host
