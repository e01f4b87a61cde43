#pragma once

#include "reports/text_metrics.hpp"
#include "toolkits/common/text_measure.hpp"

namespace kova::headless {

/// The table of advance widths for reports. The measure must outlive it.
class TableMetrics final : public reports::TextMetrics {
public:
    explicit TableMetrics(const toolkit::TextMeasure& measure) : measure_(measure) { }

    Twips Width(std::string_view text, const reports::TextFont& font) const override;
    Twips InkHeight(const reports::TextFont& font) const override;
    Twips LineHeight(const reports::TextFont& font) const override;

private:
    const toolkit::TextMeasure& measure_;
};

} // namespace kova::headless
