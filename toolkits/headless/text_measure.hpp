#pragma once

#include "toolkits/common/text_measure.hpp"

namespace kova::headless {

/// Measures by a table of advance widths, the same on every machine and for every font name. Widths and
/// heights are rounded up to whole pixels of 15 twips.
class TableMeasure final : public toolkit::TextMeasure {
public:
    toolkit::Extent Measure(const Text& text, const toolkit::Font& font, Twips wrapWidth) const override;
};

} // namespace kova::headless
