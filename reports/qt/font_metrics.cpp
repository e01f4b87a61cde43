#include "reports/qt/font_metrics.hpp"

#include "agenda/contracts/utf8.hpp"

#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace kova::paper {

namespace {

constexpr double TwipsOfPoint = 20.0;

/// The Latin letters, which is all that most texts have.
constexpr char32_t KeptAdvances = 0x250;

struct Kept {
    QFont font;
    QFontMetricsF metrics;
    /// What rounding the font's size to whole twips takes away.
    double scale = 1;
    /// Without kerning a text is as wide as its letters together.
    std::array<double, KeptAdvances> advances{};
};

Kept Make(const reports::TextFont& font)
{
    const double size = static_cast<double>(font.size) * TwipsOfPoint;
    const int whole = std::max(1, static_cast<int>(std::lround(size)));
    QFont made;
    made.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    made.setPixelSize(whole);
    made.setBold(font.bold);
    made.setHintingPreference(QFont::PreferNoHinting);
    made.setKerning(false);
    Kept kept{made, QFontMetricsF(made), size / whole};
    for (char32_t letter = 0; letter < KeptAdvances; ++letter)
        kept.advances.at(letter) = kept.metrics.horizontalAdvance(QChar(static_cast<char16_t>(letter)));
    return kept;
}

const Kept& KeptOf(const reports::TextFont& font)
{
    static std::map<std::pair<float, bool>, Kept> kept;
    const std::pair key(font.size, font.bold);
    const auto known = kept.find(key);
    return known != kept.end() ? known->second : kept.emplace(key, Make(font)).first->second;
}

/// Of a text with other signs, whose widths may depend on their neighbours.
double ShapedWidth(std::string_view text, const Kept& kept)
{
    return kept.metrics.horizontalAdvance(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace

QFont PageFont(const reports::TextFont& font) { return KeptOf(font).font; }

double FontScale(const reports::TextFont& font) { return KeptOf(font).scale; }

double AscentOf(const reports::TextFont& font) { return KeptOf(font).metrics.ascent() * KeptOf(font).scale; }

Twips FontMetrics::Width(std::string_view text, const reports::TextFont& font) const
{
    const Kept& kept = KeptOf(font);
    double width = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8::SequenceLength(text, at);
        const char32_t letter = utf8::Decode(text, at, length);
        if (letter >= KeptAdvances)
            return static_cast<Twips>(ShapedWidth(text, kept) * kept.scale);
        width += kept.advances[letter];
        at += length;
    }
    return static_cast<Twips>(width * kept.scale);
}

Twips FontMetrics::InkHeight(const reports::TextFont& font) const
{
    return static_cast<Twips>(KeptOf(font).metrics.height() * KeptOf(font).scale);
}

Twips FontMetrics::LineHeight(const reports::TextFont& font) const
{
    return static_cast<Twips>(KeptOf(font).metrics.lineSpacing() * KeptOf(font).scale);
}

} // namespace kova::paper
