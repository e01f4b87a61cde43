#include "toolkits/qt/grid/grid_text.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <functional>

namespace kova::qt {

namespace {

// Several screens of cells; beyond it old pages are only in the way.
constexpr std::size_t MostLayouts = 4096;

} // namespace

std::size_t GridText::Hash::operator()(const KeyView& key) const
{
    const std::size_t sizes =
        static_cast<std::size_t>(key.width) * 4096U + static_cast<std::size_t>(key.height);
    return std::hash<std::string_view>()(key.text)
        ^ (sizes * 4U + (key.bold ? 2U : 0U) + (key.wraps ? 1U : 0U));
}

void GridText::SetFont(const QFont& font)
{
    if (raw_.isValid() && font == font_)
        return;
    font_ = font;
    boldFont_ = font;
    boldFont_.setBold(true);
    raw_ = QRawFont::fromFont(font_);
    boldRaw_ = QRawFont::fromFont(boldFont_);
    layouts_.clear();
}

const GridText::Layout& GridText::LayoutOf(const KeyView& key)
{
    const auto known = layouts_.find(key);
    if (known != layouts_.end())
        return known->second;
    if (layouts_.size() >= MostLayouts)
        layouts_.clear();
    Key own{std::string(key.text), key.width, key.height, key.bold, key.wraps};
    return layouts_.emplace(std::move(own), MakeLayout(key)).first->second;
}

GridText::Line GridText::MakeLine(const QString& text, bool bold) const
{
    Line line;
    line.width = LayGlyphs(text, bold, line.glyphs);
    if (line.width < 0)
        line.width = Shape(text, FontOf(bold), line);
    return line;
}

// Latin letters need no shaping: glyph after glyph is several times faster, and a page of new cells is
// painted at every turn of a page. Answers the width, or -1 where the text is of another script.
double GridText::LayGlyphs(const QString& text, bool bold, QGlyphRun& run) const
{
    constexpr char16_t endOfLatin = 0x0250;
    const auto isLatin = [](QChar character) {
        return character.unicode() >= 32 && character.unicode() < endOfLatin;
    };
    if (!std::all_of(text.begin(), text.end(), isLatin))
        return -1;
    const QRawFont& font = bold ? boldRaw_ : raw_;
    const QList<quint32> glyphs = font.glyphIndexesForString(text);
    if (glyphs.contains(0U))
        return -1;
    const QList<QPointF> advances = font.advancesForGlyphIndexes(glyphs);
    QList<QPointF> places;
    places.reserve(glyphs.size());
    double x = 0;
    for (const QPointF& advance : advances) {
        places.append(QPointF(x, 0));
        x += advance.x();
    }
    run.setRawFont(font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    return x;
}

double GridText::Shape(const QString& text, const QFont& font, Line& line)
{
    line.shaped = std::make_unique<QTextLayout>(text, font);
    line.shaped->setCacheEnabled(true);
    line.shaped->beginLayout();
    const QTextLine only = line.shaped->createLine();
    line.shaped->endLayout();
    return only.isValid() ? only.naturalTextWidth() : 0;
}

GridText::Layout GridText::MakeLayout(const KeyView& key) const
{
    QString text = QString::fromUtf8(key.text.data(), static_cast<qsizetype>(key.text.size()));
    Layout layout;
    // Most cells hold one short line: it is shaped once, for its width and its drawing.
    if (!text.contains(QLatin1Char('\n'))) {
        Line line = MakeLine(text, key.bold);
        if (line.width <= key.width) {
            layout.lines.push_back(std::move(line));
            return layout;
        }
    }
    for (const QString& line : BreakLines(text, key, FontOf(key.bold)))
        layout.lines.push_back(MakeLine(line, key.bold));
    return layout;
}

QStringList GridText::BreakLines(QString text, const KeyView& key, const QFont& font)
{
    const QFontMetricsF metrics(font);
    const auto most = static_cast<std::size_t>(std::max(1.0, key.height / metrics.height()));
    text.replace(QLatin1String("\r\n"), QString(QChar::LineSeparator));
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    const std::vector<int> starts = LineStarts(text, key, font, most);
    QStringList lines;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const bool last = i + 1 == starts.size();
        const int end = last ? static_cast<int>(text.size()) : starts[i + 1];
        QString line = text.mid(starts[i], end - starts[i]).trimmed();
        line.replace(QChar::LineSeparator, QLatin1Char(' '));
        lines.append(metrics.elidedText(line, Qt::ElideRight, key.width));
    }
    return lines;
}

// Where lines begin, as many as fit.
std::vector<int> GridText::LineStarts(const QString& text, const KeyView& key, const QFont& font,
                                      std::size_t most)
{
    QTextLayout breaker(text, font);
    QTextOption option;
    option.setWrapMode(key.wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::ManualWrap);
    breaker.setTextOption(option);
    std::vector<int> starts;
    breaker.beginLayout();
    for (QTextLine line = breaker.createLine(); line.isValid() && starts.size() < most;
         line = breaker.createLine()) {
        line.setLineWidth(key.width);
        starts.push_back(line.textStart());
    }
    breaker.endLayout();
    return starts;
}

void GridText::Paint(QPainter& painter, const std::string& text, const QRect& area, Qt::Alignment alignment,
                     bool bold, bool wraps)
{
    if (area.width() <= 0)
        return;
    const Layout& layout = LayoutOf({text, area.width(), area.height(), bold, wraps});
    const QRawFont& font = bold ? boldRaw_ : raw_;
    const double lineHeight = font.ascent() + font.descent();
    const double free = area.height() - lineHeight * static_cast<double>(layout.lines.size());
    double y = area.top();
    if (alignment & Qt::AlignVCenter)
        y += free / 2;
    else if (alignment & Qt::AlignBottom)
        y += free;
    for (const Line& line : layout.lines) {
        double x = area.left();
        if (alignment & Qt::AlignHCenter)
            x += (area.width() - line.width) / 2;
        else if (alignment & Qt::AlignRight)
            x += area.width() - line.width;
        if (line.shaped)
            line.shaped->draw(&painter, QPointF(x, y));
        else
            painter.drawGlyphRun(QPointF(std::round(x), std::round(y + font.ascent())), line.glyphs);
        y += lineHeight;
    }
}

} // namespace kova::qt
