#pragma once

#include "toolkits/common/time_box.hpp"
#include "toolkits/qt/mask_view.hpp"

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
