#include "reports/qt/page_painter.hpp"

#include "reports/qt/font_metrics.hpp"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kova::paper {

namespace {

/// Colours of the screen's own, which are negative, are black on paper.
QColor ColorOf(const reports::Item& item)
{
    const Colour color = std::max(item.color, colours::Black);
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

void PaintLine(QPainter& painter, const reports::Item& item, const reports::TextLine& line)
{
    const QPointF begin(static_cast<double>(line.left), static_cast<double>(line.top) + AscentOf(item.font));
    const double scale = FontScale(item.font);
    if (scale == 1) {
        painter.drawText(begin, QString::fromStdString(line.text));
        return;
    }
    painter.save();
    painter.translate(begin);
    painter.scale(scale, scale);
    painter.drawText(QPointF(), QString::fromStdString(line.text));
    painter.restore();
}

void PaintText(QPainter& painter, const reports::Item& item)
{
    painter.setFont(PageFont(item.font));
    painter.setPen(ColorOf(item));
    for (const reports::TextLine& line : item.lines) {
        if (!line.text.empty())
            PaintLine(painter, item, line);
    }
}

} // namespace

void PaintPage(QPainter& painter, const reports::Page& page)
{
    for (const reports::Item& item : page.items) {
        if (item.kind == reports::ItemKind::Text) {
            PaintText(painter, item);
            continue;
        }
        for (const reports::Box& ink : reports::InkOf(item))
            painter.fillRect(QRectF(static_cast<double>(ink.left), static_cast<double>(ink.top),
                                    static_cast<double>(ink.width), static_cast<double>(ink.height)),
                             ColorOf(item));
    }
}

QImage PictureOf(const reports::Document& document, std::size_t page, double dotsPerInch)
{
    const double scale = dotsPerInch / TwipsOfInch;
    const QSize size(static_cast<int>(std::ceil(static_cast<double>(document.paperWidth) * scale)),
                     static_cast<int>(std::ceil(static_cast<double>(document.paperHeight) * scale)));
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    PaintPage(painter, document.pages[page]);
    return picture;
}

} // namespace kova::paper
