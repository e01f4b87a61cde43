#include "toolkits/qt/report_painter.hpp"

#include "toolkits/qt/report_metrics.hpp"
#include "toolkits/qt/theme.hpp"

#include <QPainter>

#include <cmath>

namespace kova::qt {

namespace {

void PaintLine(QPainter& painter, const reports::Item& item, const reports::TextLine& line)
{
    const QPointF begin(static_cast<double>(line.left), static_cast<double>(line.top) + AscentOf(item.font));
    const double scale = FontScale(item.font);
    if (scale == 1) {
        painter.drawText(begin, FromText(line.text));
        return;
    }
    painter.save();
    painter.translate(begin);
    painter.scale(scale, scale);
    painter.drawText(QPointF(), FromText(line.text));
    painter.restore();
}

void PaintText(QPainter& painter, const reports::Item& item)
{
    painter.setFont(ReportFont(item.font));
    painter.setPen(ToColor(item.color, Qt::black));
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
                             ToColor(item.color, Qt::black));
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

} // namespace kova::qt
