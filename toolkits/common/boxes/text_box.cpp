#include "toolkits/common/boxes/text_box.hpp"

#include "toolkits/common/form.hpp"

namespace kova::toolkit {

TextBoxModel::TextBoxModel(FormModel& form, const ControlDesign& design) : WidgetModel(form, design)
{
    edit_.Put(design.text);
}

kova::Text TextBoxModel::Text() const { return Read("Text", ShownText()); }

void TextBoxModel::Text(const kova::Text& value)
{
    Writing("Text", value);
    PutText(value);
}

void TextBoxModel::RaiseLostFocus() { GetForm().Raise(lostFocus_); }

} // namespace kova::toolkit
