#include "toolkits/qt/header_band.hpp"

#include "toolkits/qt/look/theme.hpp"

#include <QPainter>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr double Margin = 20;
constexpr double TitlePoints = 15;
constexpr double SmallPoints = 8.25;

} // namespace

void HeaderWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), GroundColor(model_.Design().backColor, look::Band));
    painter.fillRect(QRectF(0, height() - 1, width(), 1), look::Rule);
    const QFont small = MakeFont("Arial", SmallPoints);
    const QFontMetricsF metrics(small);
    const QString first = FromText(model_.ShownInclusion());
    const QString second = FromText(model_.ShownAlteration());
    painter.setFont(small);
    painter.setPen(look::MutedInk);
    const double lineHeight = metrics.height() + 2;
    const double top = (height() - (second.isEmpty() ? 1 : 2) * lineHeight) / 2;
    const QRectF lines(Margin, top, width() - 2 * Margin, lineHeight);
    painter.drawText(lines, Qt::AlignRight | Qt::AlignVCenter, first);
    painter.drawText(lines.translated(0, lineHeight), Qt::AlignRight | Qt::AlignVCenter, second);
    const double taken = std::max(metrics.horizontalAdvance(first), metrics.horizontalAdvance(second));
    const QFont large = MakeFont("Arial", TitlePoints);
    const QRectF area = QRectF(rect()).adjusted(Margin, 0, -2 * Margin - taken, 0);
    painter.setFont(large);
    painter.setPen(look::Ink);
    const QString title = FromText(model_.ShownCaption());
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(large).elidedText(title, Qt::ElideRight, area.width()));
}

void HeaderBandView::ShowContent()
{
    Shown().setAccessibleName(FromText(GetModel().ShownCaption()));
    Shown().update();
}

} // namespace kova::qt
