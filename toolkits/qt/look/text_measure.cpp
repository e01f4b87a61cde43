#include "toolkits/qt/look/text_measure.hpp"

#include "toolkits/qt/look/laid_out_text.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace kova::qt {

namespace {

QSizeF WrappedSize(const QString& text, const QFont& font, double width)
{
    constexpr double unlimited = 1e6;
    constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    return QFontMetricsF(font).boundingRect(QRectF(0, 0, width, unlimited), flags, text).size();
}

} // namespace

// Whole pixels, rounded up: a label that is a fraction too narrow would lose its last letter.
toolkit::Extent QtTextMeasure::Measure(const Text& text, const toolkit::Font& font, Twips wrapWidth) const
{
    const QFont drawn = MakeFont(font.name, static_cast<double>(font.size), font.bold);
    const QSizeF size = wrapWidth > 0
        ? WrappedSize(Lines(text), drawn, static_cast<double>(wrapWidth) / TwipsOfPixel)
        : LaidOutText(Lines(text), drawn).size();
    const double height = std::max(size.height(), QFontMetricsF(drawn).height());
    return {ToTwips(text.empty() ? 0 : std::ceil(size.width())), ToTwips(std::ceil(height))};
}

} // namespace kova::qt
