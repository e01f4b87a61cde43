#pragma once

#include "family/presentation/labels/label_sheet.hpp"
#include "reports/qt/output.hpp"

namespace kova::family {

/// Labels are printed in their own size on their own paper, or not at all.
paper::Printing LabelPrinting(const LabelSheet& sheet);

} // namespace kova::family
