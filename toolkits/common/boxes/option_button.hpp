#pragma once

#include "agenda/contracts/widgets/option_button.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class OptionButtonModel final : public WidgetModel<OptionButton, WidgetKind::OptionButton> {
public:
    using ClickHandler = std::function<void(Integer index)>;

    OptionButtonModel(FormModel& form, const ControlDesign& design);

    Text Caption() const override { return Read("Caption", caption_); }
    void Caption(const Text& value) override;
    bool Value() const override { return Read("Value", value_); }
    void Value(bool value) override;
    void OnClick(ClickHandler handler) override { click_ = std::move(handler); }

    /// The user chose this option: set, its siblings cleared, Click. Takes the focus first.
    void UserPresses();
    void UserPressesShortcut() override;

    const Text& ShownCaption() const override { return caption_; }
    bool ShownValue() const { return value_; }

    bool IsFocusable() const override { return true; }
    bool TakesEnter() override;
    void DropHandlers() override { click_ = nullptr; }

private:
    void Choose();
    void Set(bool value);

    Text caption_;
    bool value_ = false;
    ClickHandler click_;
};

} // namespace kova::toolkit
