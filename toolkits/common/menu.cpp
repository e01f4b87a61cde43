#include "toolkits/common/menu.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

namespace kova::toolkit {

MenuModel::MenuModel(FormModel& form, const ControlDesign& design)
    : WidgetModel(form, design), caption_(design.caption)
{
}

void MenuModel::Caption(const Text& value)
{
    Writing("Caption", value);
    caption_ = value;
    Tell(Aspect::Content);
}

std::vector<MenuModel*> MenuModel::EntriesOn(const FormModel& form) const
{
    std::vector<MenuModel*> entries;
    for (const auto& widget : form.Widgets()) {
        auto* entry = dynamic_cast<MenuModel*>(widget.get());
        if (entry && entry->Container() == this && entry->State().visible)
            entries.push_back(entry);
    }
    return entries;
}

std::string MenuModel::WhyNotChosen() const
{
    if (auto refusal = GetForm().Refusal(); !refusal.empty())
        return refusal;
    return IsChoosable() ? std::string() : FullName() + " cannot be chosen";
}

void MenuModel::UserChooses()
{
    // What holds it is hidden, as menus are until they open.
    GetForm().ByUser([this] {
        if (WhyNotChosen().empty())
            GetForm().Raise(click_);
    });
}

void MenuModel::PopUp(FormModel& form, Twips x, Twips y)
{
    const std::vector<MenuModel*> entries = EntriesOn(form);
    ToolkitModel& toolkit = form.GetToolkit();
    const EventScope scope(toolkit);
    const auto shown = form.weak_from_this().lock();
    toolkit.FormPopsUp(form, *this, x, y);
    if (entries.empty())
        return;
    MenuModel* chosen = toolkit.AskMenu(form, *this, entries, x, y);
    if (chosen && chosen->IsChoosable())
        chosen->GetForm().Raise(chosen->click_);
}

} // namespace kova::toolkit
