#include "toolkits/qt/look/kept_picture.hpp"

#include <QImage>
#include <QPainter>

#include <map>
#include <tuple>

namespace kova::qt {

namespace {

using Draw = std::function<void(QPainter&, const QRectF&, double)>;

// Far more than there are looks of buttons and icons.
constexpr std::size_t MostPictures = 512;

const QImage& PictureOf(const QSize& size, const PictureKey& key, double scale, const Draw& draw)
{
    static std::map<std::tuple<std::string_view, int, int, QRgb, double>, QImage> pictures;
    if (pictures.size() >= MostPictures)
        pictures.clear();
    QImage& picture = pictures[{key.name, size.width(), size.height(), key.color.rgba(), key.detail * scale}];
    if (picture.isNull()) {
        picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter, QRectF(picture.rect()), scale);
    }
    return picture;
}

} // namespace

void PaintKept(QPainter& painter, const QRectF& area, const PictureKey& key, const Draw& draw)
{
    const QTransform onScreen = painter.deviceTransform();
    const QSize size = onScreen.mapRect(area).size().toSize();
    painter.save();
    if (onScreen.type() > QTransform::TxScale || size.isEmpty()) {
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter, area, 1);
    } else {
        const double scale = onScreen.m11();
        const QPointF place = onScreen.inverted().map(QPointF(onScreen.map(area.topLeft()).toPoint()));
        painter.drawImage(QRectF(place, QSizeF(size) / scale), PictureOf(size, key, scale, draw));
    }
    painter.restore();
}

} // namespace kova::qt
