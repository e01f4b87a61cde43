#include "toolkits/common/shortcuts.hpp"

#include "agenda/contracts/text.hpp"
#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/navigation_bar.hpp"

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

using Keys = std::vector<KeyHelp>;

Text ShownCaptionOf(const WidgetCore& widget)
{
    if (const auto* button = dynamic_cast<const CommandButtonModel*>(&widget))
        return Trim(button->ShownCaption());
    if (const auto* option = dynamic_cast<const OptionButtonModel*>(&widget))
        return Trim(option->ShownCaption());
    return Trim(widget.Design().caption);
}

void AddShortcuts(const FormModel& form, Keys& keys)
{
    for (const auto& widget : form.Widgets()) {
        if (!widget->Design().shortcut.empty() && widget->TakesInput())
            keys.push_back({KeyName(widget->Design().shortcut), PurposeOf(*widget)});
    }
}

void AddPages(const GridModel& grid, Keys& keys)
{
    if (grid.OffersPage(NavigationBarModel::NextPage)) {
        keys.push_back({"PgDn", "Na última linha, ir para a próxima página"});
        keys.push_back({"Ctrl+End", "Ir para a última página"});
    }
    if (grid.OffersPage(NavigationBarModel::PreviousPage)) {
        keys.push_back({"PgUp", "Na primeira linha, ir para a página anterior"});
        keys.push_back({"Ctrl+Home", "Ir para a primeira página"});
    }
}

void AddRows(const FormModel& form, Keys& keys)
{
    for (const auto& widget : form.Widgets()) {
        const auto* grid = dynamic_cast<const GridModel*>(widget.get());
        if (!grid || !grid->TakesInput() || grid->RowAxis().Count() <= grid->RowAxis().Fixed())
            continue;
        keys.push_back({"↑ ↓", "Ir de linha em linha na lista"});
        if (const CommandButtonModel* button = grid->RowButton())
            keys.push_back({"Enter", PurposeOf(*button) + " a linha"});
        else if (grid->HasClick())
            keys.push_back({"Enter", "Escolher a linha"});
        AddPages(*grid, keys);
    }
}

void AddRepetition(const FormModel& form, Keys& keys)
{
    for (const auto& widget : form.Widgets()) {
        const auto* box = dynamic_cast<const DateBoxModel*>(widget.get());
        if (box && !box->Design().repeatKey.empty() && box->TakesInput() && box->ShownDate())
            keys.push_back({KeyName(box->Design().repeatKey), "Atualizar a lista"});
    }
}

template <class Chosen> void AddButton(const FormModel& form, const char* key, Chosen isChosen, Keys& keys)
{
    for (const auto& widget : form.Widgets()) {
        if (isChosen(*widget) && widget->TakesInput()) {
            keys.push_back({key, PurposeOf(*widget)});
            return;
        }
    }
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
    const Text caption = ShownCaptionOf(widget);
    if (!caption.empty() && caption != Trim(design.caption))
        return caption;
    if (!design.accessibleName.empty())
        return design.accessibleName;
    return widget.State().toolTipText.empty() ? caption : widget.State().toolTipText;
}

std::vector<KeyHelp> KeysOf(const FormModel& form)
{
    Keys keys;
    AddShortcuts(form, keys);
    AddRows(form, keys);
    AddRepetition(form, keys);
    AddButton(
        form, "Enter", [](const WidgetCore& widget) { return widget.Design().isDefault; }, keys);
    AddButton(
        form, "Esc", [](const WidgetCore& widget) { return widget.LeavesForm(); }, keys);
    if (keys.empty())
        return keys;
    keys.push_back({"Tab", "Ir para o próximo campo"});
    keys.push_back({Text(HelpKey), "Mostrar esta ajuda"});
    return keys;
}

} // namespace kova::toolkit
