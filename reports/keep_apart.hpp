#pragma once

#include "reports/text_metrics.hpp"

#include <vector>

namespace kova::reports {

/// Shortens each line of text that would run into other ink or beyond 0 to `width`. What is drawn first
/// goes first; a text that keeps within its own box gives way only where the boxes themselves overlap.
void KeepApart(std::vector<Item>& items, Twips width, const TextMetrics& metrics);

/// Where a line of that width begins.
Twips AlignedLeft(const Box& box, ReportAlignment alignment, Twips lineWidth);

} // namespace kova::reports
