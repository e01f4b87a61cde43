#pragma once

#include "reports/text_metrics.hpp"

#include <QFont>

class QPainter;

namespace kova::family {

inline constexpr double TwipsOfInch = 1440.0;

/// Measures with the fonts that PaintLabels draws with.
class LabelMetrics final : public reports::TextMetrics {
public:
    Twips Width(std::string_view text, const reports::TextFont& font) const override;
    Twips InkHeight(const reports::TextFont& font) const override;
    Twips LineHeight(const reports::TextFont& font) const override;
};

/// Draws the texts of a page with a painter whose unit is the twip and whose origin is the paper's top left
/// corner. The one painting of labels: screen, printer and PDF all come from here.
void PaintLabels(QPainter& painter, const reports::Page& page);

} // namespace kova::family
