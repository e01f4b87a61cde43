#include "toolkits/common/boxes/check_box.hpp"

#include "toolkits/common/form.hpp"

namespace kova::toolkit {

CheckBoxModel::CheckBoxModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design), value_(static_cast<Integer>(design.value))
{
}

void CheckBoxModel::Value(Integer value)
{
    Writing("Value", value);
    if (value < 0 || value > 2)
        throw Failure(FailureNumber::BadPropertyValue);
    if (value != value_)
        Mark(value);
}

void CheckBoxModel::UserPresses()
{
    ByUser([this] {
        if (FocusForPress())
            Mark(value_ == 0 ? 1 : 0);
    });
}

bool CheckBoxModel::TakesEnter()
{
    UserPresses();
    return true;
}

void CheckBoxModel::Mark(Integer value)
{
    value_ = value;
    Tell(Aspect::Content);
    GetForm().Raise(click_);
}

} // namespace kova::toolkit
