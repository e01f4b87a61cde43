#include "toolkits/common/command_button.hpp"

#include "toolkits/common/form.hpp"

namespace kova::toolkit {

CommandButtonModel::CommandButtonModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design), caption_(design.caption)
{
}

void CommandButtonModel::Caption(const Text& value)
{
    Writing("Caption", value);
    caption_ = value;
    Tell(Aspect::Content);
}

void CommandButtonModel::ToolTipTitle(const Text& value)
{
    Writing("ToolTipTitle", value);
    toolTipTitle_ = value;
}

void CommandButtonModel::ToolTipBody(const Text& value)
{
    Writing("ToolTipBody", value);
    toolTipBody_ = value;
}

void CommandButtonModel::ToolTipType(Long value)
{
    Writing("ToolTipType", value);
    toolTipType_ = value;
}

void CommandButtonModel::UserPresses()
{
    ByUser([this] {
        if (FocusForPress())
            GetForm().Raise(click_);
    });
}

void CommandButtonModel::UserPressesInPlace()
{
    ByUser([this] { GetForm().Raise(click_); });
}

void CommandButtonModel::UserPressesShortcut()
{
    GetForm().PressKeepingFocus(*this, [this] { UserPresses(); });
}

bool CommandButtonModel::LeavesForm() const
{
    const ControlDesign& design = Design();
    return design.isCancel && (design.cancelCaption.empty() || design.cancelCaption == caption_);
}

bool CommandButtonModel::TakesEnter()
{
    UserPresses();
    return true;
}

void CommandButtonModel::RaiseLostFocus() { GetForm().Raise(lostFocus_); }

void CommandButtonModel::DropHandlers()
{
    click_ = nullptr;
    lostFocus_ = nullptr;
}

} // namespace kova::toolkit
