#pragma once

#include "agenda/contracts/widgets/label.hpp"
#include "toolkits/common/text_measure.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

/// A label of automatic size takes the size that the toolkit's TextMeasure gives its caption; with word
/// wrap it keeps its width and follows in height only. Writes of Width and Height hold until the next
/// write of Caption.
class LabelModel final : public WidgetModel<Label, WidgetKind::Label> {
public:
    LabelModel(FormModel& form, const ControlDesign& design);

    Text Caption() const override { return Read("Caption", caption_); }
    void Caption(const Text& value) override;
    Colour ForeColor() const override { return Read("ForeColor", foreColor_); }
    void ForeColor(Colour value) override;

    const Text& ShownCaption() const override { return caption_; }
    /// The caption with "&" before the letter that leads to the control it names, as designed; a caption
    /// that code has changed has none.
    const Text& CaptionWithMnemonic() const;
    Colour ShownForeColor() const { return foreColor_; }

    void Complete() override { FitToCaption(); }

private:
    void FitToCaption();

    Text caption_;
    /// The size that the caption was given last.
    Extent fitted_;
    Colour foreColor_ = colours::Black;
};

} // namespace kova::toolkit
