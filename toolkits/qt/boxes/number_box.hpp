#pragma once

#include "toolkits/common/boxes/number_box.hpp"
#include "toolkits/qt/boxes/edit_view.hpp"

namespace kova::qt {

class NumberBoxView : public EditView {
public:
    NumberBoxView(QtToolkit& toolkit, toolkit::NumberBoxModel& model, QWidget* parent)
        : EditView(toolkit, model, parent)
    {
        Editor()->setInputMethodHints(Qt::ImhDigitsOnly);
    }
};

} // namespace kova::qt
