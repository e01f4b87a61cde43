#pragma once

#include "agenda/contracts/widgets/time_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class TimeBoxModel final : public WidgetModel<KVTime, WidgetKind::KVTime, MaskEditCore> {
public:
    TimeBoxModel(FormModel& form, const ControlDesign& design);

    kova::Text Text() const override;
    void Text(const kova::Text& value) override;
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    void RaiseLostFocus() override;
    void DropHandlers() override { lostFocus_ = nullptr; }

protected:
    bool ShowsValue() const override;

private:
    Handler lostFocus_;
};

} // namespace kova::toolkit
