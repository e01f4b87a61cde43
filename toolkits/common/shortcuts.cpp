#include "toolkits/common/shortcuts.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/form.hpp"

#include <array>
#include <utility>

namespace kova::toolkit {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 4> NamesOnScreen{{
    {"Left", "←"},
    {"Right", "→"},
    {"Ins", "Insert"},
    {"Del", "Delete"},
}};

bool HasGrid(const FormModel& form)
{
    for (const auto& widget : form.Widgets())
        if (widget->KindOfWidget() == WidgetKind::MSFlexGrid)
            return true;
    return false;
}

} // namespace

Text KeyName(std::string_view shortcut)
{
    const std::size_t plus = shortcut.rfind('+');
    const std::size_t start = plus == std::string_view::npos ? 0 : plus + 1;
    const std::string_view key = shortcut.substr(start);
    for (const auto& [name, shown] : NamesOnScreen)
        if (key == name)
            return Text(shortcut.substr(0, start)) + Text(shown);
    return Text(shortcut);
}

Text PurposeOf(const WidgetCore& widget)
{
    const ControlDesign& design = widget.Design();
    if (!design.accessibleName.empty())
        return design.accessibleName;
    return design.toolTipText.empty() ? Trim(design.caption) : design.toolTipText;
}

std::vector<KeyHelp> KeysOf(const FormModel& form)
{
    std::vector<KeyHelp> keys;
    for (const auto& widget : form.Widgets())
        if (!widget->Design().shortcut.empty())
            keys.push_back({KeyName(widget->Design().shortcut), PurposeOf(*widget)});
    if (keys.empty())
        return keys;
    if (HasGrid(form))
        keys.push_back({"↑ ↓", "Ir de linha em linha na lista"});
    keys.push_back({"Tab", "Ir para o próximo campo"});
    keys.push_back({Text(HelpKey), "Mostrar esta ajuda"});
    return keys;
}

} // namespace kova::toolkit
