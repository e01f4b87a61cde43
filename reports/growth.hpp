#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <vector>

namespace kova::reports {

/// A control of a section from top to bottom: as designed, and the height that its content needs.
struct Span {
    Twips top = 0;
    Twips height = 0;
    Twips needed = 0;
};

struct Grown {
    /// New tops, in the order of the spans.
    std::vector<Twips> tops = {};
    Twips sectionHeight = 0;
};

/// Moves down what begins at or below the former bottom of a control that grew, by as much as that bottom
/// has moved; where several controls push, the farthest counts and not their sum. The section grows by the
/// farthest of all. A needed height below the designed one counts as the designed one.
Grown PushDown(const std::vector<Span>& spans, Twips sectionHeight);

} // namespace kova::reports
