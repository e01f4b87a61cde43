#pragma once

#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

class ComboBoxView : public ViewOf<toolkit::ComboBoxModel, ComboField> {
public:
    ComboBoxView(toolkit::ComboBoxModel& model, QWidget* parent);

protected:
    void ShowContent() override;
    void ShowSelection() override;
};

} // namespace kova::qt
