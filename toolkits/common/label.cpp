#include "toolkits/common/label.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

#include "agenda/contracts/text.hpp"

namespace kova::toolkit {

namespace {

Text PlainCaption(const ControlDesign& design)
{
    return design.labelOf.empty() ? design.caption : Replace(design.caption, "&", "");
}

} // namespace

LabelModel::LabelModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design),
      caption_(PlainCaption(design)),
      foreColor_(design.foreColor == -1 ? colours::Black : design.foreColor)
{
}

const Text& LabelModel::CaptionWithMnemonic() const
{
    return caption_ == PlainCaption(Design()) ? Design().caption : caption_;
}

void LabelModel::Caption(const Text& value)
{
    Writing("Caption", value);
    const bool isNew = value != caption_;
    caption_ = value;
    // The same caption again only takes back a size that was written meanwhile.
    if (isNew || state_.width != fitted_.width || state_.height != fitted_.height)
        FitToCaption();
    if (isNew)
        Tell(Aspect::Content);
}

void LabelModel::ForeColor(Colour value)
{
    Writing("ForeColor", value);
    foreColor_ = value;
    Tell(Aspect::Look);
}

void LabelModel::FitToCaption()
{
    if (!Design().autoSize)
        return;
    const Font font{Design().fontName, Design().fontSize, Design().fontBold};
    const Twips wrapWidth = Design().wordWrap ? state_.width : 0;
    const Extent extent = GetForm().GetToolkit().Measure().Measure(caption_, font, wrapWidth);
    if (!Design().wordWrap)
        state_.width = extent.width;
    state_.height = extent.height;
    fitted_ = {state_.width, state_.height};
    Tell(Aspect::Geometry);
}

} // namespace kova::toolkit
