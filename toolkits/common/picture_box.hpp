#pragma once

#include "agenda/contracts/widgets/picture_box.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class PictureBoxModel final : public WidgetModel<PictureBox, WidgetKind::PictureBox> {
public:
    using WidgetModel::WidgetModel;

    /// Given by the toolkit, see ToolkitModel::HandleOf.
    Long Handle() const override;
    bool HoldsOthers() const override { return true; }
};

} // namespace kova::toolkit
