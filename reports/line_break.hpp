#pragma once

#include "reports/text_metrics.hpp"

#include <cstddef>
#include <string_view>
#include <vector>

namespace kova::reports {

/// A line that was broken out of a text, and its advance width.
struct BrokenLine {
    Text text = {};
    Twips width = 0;

    friend bool operator==(const BrokenLine&, const BrokenLine&) = default;
};

/// The whole text as one line; line breaks, tabs and other control characters become blanks.
BrokenLine OneLine(std::string_view text, const TextFont& font, const TextMetrics& metrics);

/// Breaks a text at its own line breaks ("\r\n", "\n" or "\r") and between words, so that no line is wider
/// than `width`; a word that is wider breaks between characters. Blanks at a break are dropped, and so are
/// line breaks at the text's end. At most `most` lines: the last one takes all that is left. An empty text
/// has no line.
std::vector<BrokenLine> BreakLines(std::string_view text, const TextFont& font, Twips width, std::size_t most,
                                   const TextMetrics& metrics);

/// As much of the beginning of a line as fits into `width`, with an ellipsis where something is left out;
/// a line without text where not even that fits.
BrokenLine Shortened(const BrokenLine& line, const TextFont& font, Twips width, const TextMetrics& metrics);

} // namespace kova::reports
