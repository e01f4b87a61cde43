#include "toolkits/common/menu.hpp"

#include "toolkits/common/form.hpp"

namespace kova::toolkit {

MenuModel::MenuModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design), caption_(design.caption)
{
}

void MenuModel::Caption(const Text& value)
{
    Writing("Caption", value);
    caption_ = value;
    Tell(Aspect::Content);
}

void MenuModel::Choose() { GetForm().Raise(click_); }

} // namespace kova::toolkit
