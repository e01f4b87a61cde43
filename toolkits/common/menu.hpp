#pragma once

#include "agenda/contracts/widgets/menu.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class MenuModel final : public WidgetModel<Menu, WidgetKind::Menu> {
public:
    MenuModel(FormModel& form, const ControlDesign& design);

    Text Caption() const override { return Read("Caption", caption_); }
    void Caption(const Text& value) override;
    void OnClick(Handler handler) override { click_ = std::move(handler); }

    const Text& ShownCaption() const override { return caption_; }
    bool IsRule() const { return caption_ == "-"; }
    /// Whether the user could choose the entry in an open menu.
    bool IsChoosable() const { return State().visible && State().enabled && !IsRule() && Denial().empty(); }

    /// The user chose the entry, or another one that stands for it: where it is choosable it is clicked.
    void UserChooses();
    /// Why the user could not, as in WidgetCore::Refusal; "" where he can.
    std::string WhyNotChosen() const;

    bool HoldsOthers() const override { return true; }
    void PopUp(FormModel& form, Twips x, Twips y) override;
    void DropHandlers() override { click_ = nullptr; }

private:
    /// What a menu of that form shows: its entries in design order, visible ones only.
    std::vector<MenuModel*> EntriesOn(const FormModel& form) const;

    Text caption_;
    Handler click_;
};

} // namespace kova::toolkit
