#include "family/presentation/labels/label_painter.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <cmath>

namespace kova::family {

namespace {

constexpr double TwipsOfPoint = 20.0;

QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Without hinting, so that a text is as wide on the screen as on paper.
QFont FontOf(const reports::TextFont& font)
{
    QFont made;
    made.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    made.setPixelSize(static_cast<int>(std::lround(font.size * TwipsOfPoint)));
    made.setBold(font.bold);
    made.setHintingPreference(QFont::PreferNoHinting);
    made.setKerning(false);
    return made;
}

} // namespace

Twips LabelMetrics::Width(std::string_view text, const reports::TextFont& font) const
{
    return static_cast<Twips>(QFontMetricsF(FontOf(font)).horizontalAdvance(ToQString(text)));
}

Twips LabelMetrics::InkHeight(const reports::TextFont& font) const
{
    return static_cast<Twips>(QFontMetricsF(FontOf(font)).height());
}

Twips LabelMetrics::LineHeight(const reports::TextFont& font) const
{
    return static_cast<Twips>(QFontMetricsF(FontOf(font)).lineSpacing());
}

void PaintLabels(QPainter& painter, const reports::Page& page)
{
    painter.setPen(Qt::black);
    for (const reports::Item& item : page.items) {
        const QFont font = FontOf(item.font);
        const double ascent = QFontMetricsF(font).ascent();
        painter.setFont(font);
        for (const reports::TextLine& line : item.lines)
            painter.drawText(QPointF(static_cast<double>(line.left), static_cast<double>(line.top) + ascent),
                             ToQString(line.text));
    }
}

} // namespace kova::family
