#pragma once

#include "agenda/contracts/widgets/check_box.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class CheckBoxModel final : public WidgetModel<CheckBox, WidgetKind::CheckBox> {
public:
    CheckBoxModel(FormModel& form, const ControlDesign& design);

    Text Caption() const override { return Read("Caption", Design().caption); }
    Integer Value() const override { return Read("Value", value_); }
    void Value(Integer value) override;
    void OnClick(Handler handler) override { click_ = std::move(handler); }

    /// The user toggled the box: 0 becomes 1, anything else 0; raises Click. Takes the focus first.
    void UserPresses();

    /// 0 clear, 1 marked, 2 greyed.
    Integer ShownValue() const { return value_; }

    bool IsFocusable() const override { return true; }
    bool TakesEnter() override;
    void DropHandlers() override { click_ = nullptr; }

private:
    void Mark(Integer value);

    Integer value_ = 0;
    Handler click_;
};

} // namespace kova::toolkit
