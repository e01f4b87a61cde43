#pragma once

#include "toolkits/common/boxes/check_box.hpp"
#include "toolkits/qt/boxes/toggle.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

class CheckBoxView : public ViewOf<toolkit::CheckBoxModel, Toggle> {
public:
    CheckBoxView(toolkit::CheckBoxModel& model, QWidget* parent)
        : ViewOf(model, new Toggle(parent, Toggle::Mark::Box))
    {
        Shown().setFocusPolicy(Qt::TabFocus);
        Shown().setText(FromText(model.Design().caption));
        Shown().pressed = [this] { GetModel().UserPresses(); };
        WatchFocus(&Shown());
    }

protected:
    void ShowContent() override { Shown().SetValue(GetModel().ShownValue()); }
};

} // namespace kova::qt
