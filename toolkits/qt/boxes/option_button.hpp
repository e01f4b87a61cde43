#pragma once

#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/qt/boxes/toggle.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

class OptionButtonView : public ViewOf<toolkit::OptionButtonModel, Toggle> {
public:
    OptionButtonView(toolkit::OptionButtonModel& model, QWidget* parent)
        : ViewOf(model, new Toggle(parent, Toggle::Mark::Circle))
    {
        Shown().setFocusPolicy(Qt::TabFocus);
        Shown().pressed = [this] { GetModel().UserPresses(); };
        WatchFocus(&Shown());
    }

protected:
    void ShowContent() override
    {
        Shown().setText(FromText(GetModel().ShownCaption()));
        Shown().SetValue(GetModel().ShownValue() ? 1 : 0);
    }
};

} // namespace kova::qt
