#pragma once

#include "family/presentation/labels/label_sheet.hpp"
#include "family/presentation/labels/postal_address.hpp"
#include "reports/text_metrics.hpp"

#include <vector>

namespace kova::family {

/// The lines as they stand in a label with that box: inside a margin, in the middle of its height, in the
/// largest letters with which no line breaks; where these would be small, in the largest with which the
/// broken lines have room. Nothing is left out or stands over the edge.
std::vector<reports::Item> FitLabel(const std::vector<LabelLine>& lines, const reports::Box& box,
                                    const reports::TextMetrics& metrics);

/// What is printed.
struct LabelRun {
    const LabelSheet* sheet = nullptr;
    /// First free position of the first sheet, from 0.
    int first = 0;
    int copies = 1;
};

/// The sheets with that many copies of one label, all alike. The document has no title.
reports::Document LabelPages(const LabelRun& run, const std::vector<LabelLine>& lines,
                             const reports::TextMetrics& metrics);

} // namespace kova::family
