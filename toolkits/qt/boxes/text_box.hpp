#pragma once

#include "toolkits/common/boxes/text_box.hpp"
#include "toolkits/qt/boxes/edit_view.hpp"

namespace kova::qt {

/// A text box is the plain editor; its locked look follows from the model.
class TextBoxView : public EditView {
public:
    TextBoxView(toolkit::TextBoxModel& model, QWidget* parent) : EditView(model, parent) { }
};

} // namespace kova::qt
