#pragma once

#include "agenda/contracts/widgets/text_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class TextBoxModel final : public WidgetModel<KVTextBox, WidgetKind::KVTextBox, FreeEditCore> {
public:
    TextBoxModel(FormModel& form, const ControlDesign& design);

    kova::Text Text() const override;
    void Text(const kova::Text& value) override;
    bool Locked() const override { return Read("Locked", Design().locked); }
    int MaxLength() const override { return Read("MaxLength", Design().maxLength); }
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    bool AllowsTyping() const override { return !Design().locked; }
    void RaiseLostFocus() override;
    void DropHandlers() override { lostFocus_ = nullptr; }

private:
    Handler lostFocus_;
};

} // namespace kova::toolkit
