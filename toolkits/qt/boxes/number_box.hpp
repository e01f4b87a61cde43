#pragma once

#include "toolkits/common/boxes/number_box.hpp"
#include "toolkits/qt/boxes/edit_view.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"

namespace kova::qt {

class NumberBoxView : public EditView {
public:
    NumberBoxView(toolkit::NumberBoxModel& model, QWidget* parent) : EditView(model, parent)
    {
        Editor()->setInputMethodHints(Qt::ImhDigitsOnly);
    }
};

} // namespace kova::qt
