#include "family/presentation/labels/label_picture.hpp"

#include "family/presentation/labels/label_sheet.hpp"
#include "reports/qt/page_painter.hpp"

#include <QPainter>

#include <algorithm>

namespace kova::family {

namespace {

constexpr double TwipsOfPixel = 15.0;
constexpr double CornerTwips = 120.0;
constexpr QSize Smallest(160, 60);

} // namespace

LabelPicture::LabelPicture(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(Smallest);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void LabelPicture::Show(reports::Page label, const reports::Box& box)
{
    label_ = std::move(label);
    box_ = box;
    update();
}

QSize LabelPicture::sizeHint() const
{
    QSizeF largest;
    for (const LabelSheet& sheet : LabelSheets())
        largest = largest.expandedTo(QSizeF(sheet.width, sheet.height));
    return (largest * TwipsOfMillimetre / TwipsOfPixel).toSize() + QSize(2, 2);
}

void LabelPicture::paintEvent(QPaintEvent*)
{
    if (box_.width <= 0)
        return;
    const QSizeF label(static_cast<double>(box_.width), static_cast<double>(box_.height));
    const double scale =
        std::min({1 / TwipsOfPixel, (width() - 2) / label.width(), (height() - 2) / label.height()});
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate((width() - label.width() * scale) / 2, 1);
    painter.scale(scale, scale);
    QPen edge(QColor(160, 168, 178));
    edge.setCosmetic(true);
    painter.setPen(edge);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(QPointF(), label), CornerTwips, CornerTwips);
    paper::PaintPage(painter, label_);
}

} // namespace kova::family
