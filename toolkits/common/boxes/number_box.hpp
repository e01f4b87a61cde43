#pragma once

#include "agenda/contracts/widgets/number_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

/// Only digits enter, whatever the handler lets through.
class NumberBoxModel final : public WidgetModel<KVNumberBox, WidgetKind::KVNumberBox, FreeEditCore> {
public:
    using KeyPressHandler = std::function<void(Integer& character)>;

    NumberBoxModel(FormModel& form, const ControlDesign& design);

    kova::Text Text() const override;
    void Text(const kova::Text& value) override;
    void OnKeyPress(KeyPressHandler handler) override { keyPress_ = std::move(handler); }
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    void RaiseLostFocus() override;
    void DropHandlers() override;

protected:
    bool Admits(char32_t& character) override;
    bool AdmitsErasing(bool forward) override;

private:
    Integer AskHandler(Integer character);

    KeyPressHandler keyPress_;
    Handler lostFocus_;
};

} // namespace kova::toolkit
