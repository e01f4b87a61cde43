// The keys of a form: what each of them does, and which of them do something here and now.

#include "toolkits/common/form.hpp"
#include "toolkits/common/shortcuts.hpp"
#include "toolkits/common/toolkit.hpp"

#include <algorithm>

namespace kova::toolkit {

bool FormModel::UserPressesShortcut(std::string_view shortcut)
{
    bool means = false;
    ByUser([&] {
        if (Refusal().empty())
            means = PressShortcut(shortcut);
    });
    return means;
}

bool FormModel::PressShortcut(std::string_view shortcut)
{
    if (shortcut == HelpKey) {
        const std::vector<KeyHelp> keys = Keys();
        if (!keys.empty())
            toolkit_.TellKeys(*this, keys);
        return !keys.empty();
    }
    for (const auto& widget : widgets_) {
        if (widget->Design().shortcut == shortcut) {
            if (widget->TakesInput())
                widget->UserPressesShortcut();
            return true;
        }
    }
    return std::any_of(widgets_.begin(), widgets_.end(),
                       [shortcut](const auto& widget) { return widget->TakesFormKey(shortcut); });
}

std::vector<KeyHelp> FormModel::Keys() const
{
    std::vector<KeyHelp> keys;
    for (const auto& widget : widgets_) {
        if (!widget->Design().shortcut.empty() && widget->TakesInput())
            keys.push_back({KeyName(widget->Design().shortcut), widget->Purpose()});
    }
    for (const auto& widget : widgets_)
        widget->AddRowKeys(keys);
    for (const auto& widget : widgets_)
        widget->AddFormKeys(keys);
    const auto add = [&keys](const char* key, const WidgetCore* button) {
        if (button)
            keys.push_back({key, button->Purpose()});
    };
    add("Enter", ButtonOf(&WidgetCore::ConfirmsForm));
    add("Esc", ButtonOf(&WidgetCore::LeavesForm));
    if (keys.empty())
        return keys;
    keys.push_back({"Tab", "Ir para o próximo campo"});
    keys.push_back({Text(HelpKey), "Mostrar esta ajuda"});
    return keys;
}

WidgetCore* FormModel::ButtonOf(bool (WidgetCore::*isMeant)() const) const
{
    const auto found = std::find_if(widgets_.begin(), widgets_.end(), [isMeant](const auto& widget) {
        return (widget.get()->*isMeant)() && widget->TakesInput();
    });
    return found == widgets_.end() ? nullptr : found->get();
}

} // namespace kova::toolkit
