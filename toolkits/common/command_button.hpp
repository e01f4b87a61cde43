#pragma once

#include "agenda/contracts/widgets/command_button.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class CommandButtonModel final : public WidgetModel<KVCommandButton, WidgetKind::KVCommandButton> {
public:
    CommandButtonModel(FormModel& form, const ControlDesign& design);

    Text Caption() const override { return Read("Caption", caption_); }
    void Caption(const Text& value) override;
    /// The parts of the balloon are kept and not drawn.
    void ToolTipTitle(const Text& value) override;
    void ToolTipBody(const Text& value) override;
    void ToolTipType(Long value) override;
    void OnClick(Handler handler) override { click_ = std::move(handler); }
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    /// The user pressed the button: it takes the focus first, and is not pressed where the LostFocus of the
    /// widget before it holds the press up, see WidgetCore::FocusForPress.
    void UserPresses();
    void UserPressesInPlace() override;
    /// The focus stays where it was.
    void UserPressesShortcut() override;
    bool IsField() const override { return false; }
    bool ConfirmsForm() const override { return Design().isDefault; }
    bool LeavesForm() const override;

    const Text& ShownCaption() const override { return caption_; }

    bool IsFocusable() const override { return true; }
    bool TakesEnter() override;
    void RaiseLostFocus() override;
    void DropHandlers() override;

private:
    Text caption_;
    Text toolTipTitle_;
    Text toolTipBody_;
    Long toolTipType_ = 0;
    Handler click_;
    Handler lostFocus_;
};

} // namespace kova::toolkit
