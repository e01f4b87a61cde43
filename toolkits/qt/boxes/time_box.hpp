#pragma once

#include "toolkits/common/boxes/time_box.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/boxes/mask_view.hpp"

namespace kova::qt {

class TimeBoxView : public MaskView {
public:
    TimeBoxView(toolkit::TimeBoxModel& model, QWidget* parent) : MaskView(model, parent)
    {
        Editor()->setInputMethodHints(Qt::ImhTime);
    }
};

} // namespace kova::qt
