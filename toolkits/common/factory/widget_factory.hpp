#pragma once

#include <memory>

namespace kova {
struct ControlDesign;
}

namespace kova::toolkit {

class FormModel;
class WidgetCore;

/// The model of a designed control: the one place that knows every kind.
std::unique_ptr<WidgetCore> MakeWidget(FormModel& form, const ControlDesign& design);

} // namespace kova::toolkit
