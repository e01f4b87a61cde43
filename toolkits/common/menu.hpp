#pragma once

#include "agenda/contracts/widgets/menu.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class MenuModel final : public WidgetModel<Menu, WidgetKind::Menu> {
public:
    MenuModel(FormModel& form, const ControlDesign& design);

    Text Caption() const override { return Read("Caption", caption_); }
    void Caption(const Text& value) override;
    void OnClick(Handler handler) override { click_ = std::move(handler); }

    const Text& ShownCaption() const { return caption_; }
    bool IsRule() const { return caption_ == "-"; }
    /// Whether the user could choose the entry in an open menu.
    bool IsChoosable() const { return State().visible && State().enabled && !IsRule(); }

    /// The entry was chosen in the pop-up menu; FormModel calls it.
    void Choose();
    void DropHandlers() override { click_ = nullptr; }

private:
    Text caption_;
    Handler click_;
};

} // namespace kova::toolkit
