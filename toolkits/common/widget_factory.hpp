#pragma once

#include "toolkits/common/widget_core.hpp"

#include <memory>

namespace kova::toolkit {

/// The model of a designed control.
std::unique_ptr<WidgetCore> MakeWidget(FormModel& form, const ControlDesign& design);

/// Width and height of a control that its design leaves open, in twips.
struct UsualSize {
    Twips width;
    Twips height;
};
UsualSize UsualSizeOf(WidgetKind kind);

} // namespace kova::toolkit
