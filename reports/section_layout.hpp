#pragma once

#include "reports/text_metrics.hpp"

#include <vector>

namespace kova::reports {

/// A section with its texts, from the section's own top left corner.
struct SectionLayout {
    /// In drawing order.
    std::vector<Item> items = {};
    Twips height = 0;
};

/// Places a section. `texts` holds what each control shows, in the order of the design; what belongs to
/// lines is not read. `width` is how far ink may go: a text that is wider than its box runs on beside it
/// as far as nothing else stands there, and is shortened with an ellipsis only where something does.
SectionLayout LayOutSection(const ReportSectionDesign& design, const std::vector<Text>& texts, Twips width,
                            const TextMetrics& metrics);

/// Cuts a section that is higher than `room` into parts that are not, each from its own top. Cuts fall
/// between lines of text; where one line alone is higher, through it.
std::vector<SectionLayout> Split(const SectionLayout& section, Twips room);

} // namespace kova::reports
