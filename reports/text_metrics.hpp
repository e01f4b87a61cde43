#pragma once

#include "reports/pages.hpp"

#include <string_view>

namespace kova::reports {

/// How large texts are, in twips. The toolkit that paints gives it; screen, PDF and printer share one.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;

    /// Advance width of a text without line breaks.
    virtual Twips Width(std::string_view text, const TextFont& font) const = 0;
    /// From the highest to the lowest ink of a line.
    virtual Twips InkHeight(const TextFont& font) const = 0;
    /// From one line to the next; not less than its ink.
    virtual Twips LineHeight(const TextFont& font) const = 0;
};

} // namespace kova::reports
