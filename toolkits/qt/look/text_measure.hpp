#pragma once

#include "toolkits/common/text_measure.hpp"

namespace kova::qt {

/// Measures with the fonts that the views draw with.
class QtTextMeasure : public toolkit::TextMeasure {
public:
    toolkit::Extent Measure(const Text& text, const toolkit::Font& font, Twips wrapWidth) const override;
};

} // namespace kova::qt
