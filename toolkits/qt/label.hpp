#pragma once

#include "toolkits/common/label.hpp"
#include "toolkits/qt/caption_label.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

class LabelView : public ViewOf<toolkit::LabelModel, CaptionLabel> {
public:
    LabelView(toolkit::LabelModel& model, QWidget* parent);

    /// Lets the label's mnemonic reach the control that it names.
    void FormAppears() override;

protected:
    void ShowContent() override;
    void ShowLook() override;

private:
    QColor GroundBehind() const;
};

} // namespace kova::qt
