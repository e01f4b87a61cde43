#include "toolkits/common/boxes/option_button.hpp"

#include "toolkits/common/form.hpp"

namespace kova::toolkit {

OptionButtonModel::OptionButtonModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design), caption_(design.caption), value_(design.value != 0)
{
}

void OptionButtonModel::Caption(const Text& value)
{
    Writing("Caption", value);
    caption_ = value;
    Tell(Aspect::Content);
}

void OptionButtonModel::Value(bool value)
{
    Writing("Value", value);
    if (value)
        Choose();
    else
        Set(false);
}

void OptionButtonModel::UserPresses()
{
    ByUser([this] {
        if (FocusForPress())
            Choose();
    });
}

void OptionButtonModel::UserPressesShortcut()
{
    GetForm().MoveFocus(this);
    if (HasFocus())
        UserPresses();
}

bool OptionButtonModel::TakesEnter()
{
    UserPresses();
    return true;
}

void OptionButtonModel::Choose()
{
    for (const auto& widget : GetForm().Widgets()) {
        auto* sibling = dynamic_cast<OptionButtonModel*>(widget.get());
        if (sibling && sibling != this && sibling->Design().name == Design().name)
            sibling->Set(false);
    }
    Set(true);
    GetForm().Raise(click_, static_cast<Integer>(Design().index));
}

void OptionButtonModel::Set(bool value)
{
    if (value_ == value)
        return;
    value_ = value;
    Tell(Aspect::Content);
}

} // namespace kova::toolkit
