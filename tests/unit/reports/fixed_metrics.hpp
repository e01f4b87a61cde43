#pragma once

#include "agenda/contracts/text.hpp"
#include "reports/text_metrics.hpp"

namespace kova::reports::test {

/// Every character is ten times the font's size wide, and a line twenty times as high, of which eighteen
/// are ink: at 10 points 100, 200 and 180.
class FixedMetrics final : public TextMetrics {
public:
    Twips Width(std::string_view text, const TextFont& font) const override
    {
        return static_cast<Twips>(Length(text)) * font.size * 10;
    }
    Twips InkHeight(const TextFont& font) const override { return font.size * 18; }
    Twips LineHeight(const TextFont& font) const override { return font.size * 20; }
};

} // namespace kova::reports::test
