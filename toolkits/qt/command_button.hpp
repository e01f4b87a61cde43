#pragma once

#include "toolkits/common/command_button.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

class CommandButtonView : public ViewOf<toolkit::CommandButtonModel, FlatButton> {
public:
    CommandButtonView(toolkit::CommandButtonModel& model, QWidget* parent);

protected:
    void ShowContent() override;
    void ShowLook() override;
    void ShowToolTip() override;
};

} // namespace kova::qt
