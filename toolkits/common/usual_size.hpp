#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova::toolkit {

/// Width and height of a control that its design leaves open, in twips.
struct UsualSize {
    Twips width;
    Twips height;
};
UsualSize UsualSizeOf(WidgetKind kind);

} // namespace kova::toolkit
