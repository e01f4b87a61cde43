#pragma once

#include "agenda/contracts/widgets/shape.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class ShapeModel final : public WidgetModel<Shape, WidgetKind::Shape> {
public:
    using WidgetModel::WidgetModel;

    /// Drawn as a rule rather than as a rectangle.
    bool IsRule() const { return State().width <= 30 || State().height <= 30; }
};

} // namespace kova::toolkit
