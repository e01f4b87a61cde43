#pragma once

#include "reports/text_metrics.hpp"

#include <QFont>

namespace kova::paper {

/// The font of a page's texts, for a painter whose unit is the twip: without hinting, so that a text is
/// as wide on the screen as on paper.
QFont PageFont(const reports::TextFont& font);
/// What PageFont, which has a whole number of twips as its size, must be scaled by.
double FontScale(const reports::TextFont& font);

/// Measures with the fonts that PaintPage draws with.
class FontMetrics final : public reports::TextMetrics {
public:
    Twips Width(std::string_view text, const reports::TextFont& font) const override;
    Twips InkHeight(const reports::TextFont& font) const override;
    Twips LineHeight(const reports::TextFont& font) const override;
};

/// From the top of a line to the line that its letters stand on.
double AscentOf(const reports::TextFont& font);

} // namespace kova::paper
