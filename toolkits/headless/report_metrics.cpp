#include "toolkits/headless/report_metrics.hpp"

namespace kova::headless {

namespace {

constexpr Twips TwipsPerPoint = 20;
/// Ascent and descent, of the font's size.
constexpr Twips InkFactor = 1.12F;

toolkit::Font ToFont(const reports::TextFont& font) { return {"Arial", font.size, font.bold}; }

} // namespace

Twips TableMetrics::Width(std::string_view text, const reports::TextFont& font) const
{
    return text.empty() ? 0 : measure_.Measure(Text(text), ToFont(font), 0).width;
}

Twips TableMetrics::InkHeight(const reports::TextFont& font) const
{
    return font.size * TwipsPerPoint * InkFactor;
}

Twips TableMetrics::LineHeight(const reports::TextFont& font) const
{
    return measure_.Measure({}, ToFont(font), 0).height;
}

} // namespace kova::headless
