#pragma once

#include "toolkits/common/boxes/time_box.hpp"
#include "toolkits/qt/boxes/mask_view.hpp"

namespace kova::qt {

class TimeBoxView : public MaskView {
public:
    TimeBoxView(QtToolkit& toolkit, toolkit::TimeBoxModel& model, QWidget* parent)
        : MaskView(toolkit, model, parent)
    {
        Editor()->setInputMethodHints(Qt::ImhTime);
    }
};

} // namespace kova::qt
