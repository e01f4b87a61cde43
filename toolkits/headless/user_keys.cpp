// A key of the user: to the form as a whole first, then to the control that has the focus.

#include "toolkits/common/boxes/check_box.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/headless/keys.hpp"
#include "toolkits/headless/user.hpp"

#include <algorithm>
#include <map>

namespace kova::headless {

namespace {

void MoveCaret(toolkit::EditCore& box, const KeyPress& key, std::size_t caret)
{
    box.UserSelects(key.shift ? box.ShownSelection().anchor : caret, caret);
}

void KeyInBox(toolkit::EditCore& box, const KeyPress& key)
{
    const toolkit::TextSelection selection = box.ShownSelection();
    const std::size_t first = std::min(selection.anchor, selection.caret);
    const std::size_t last = std::max(selection.anchor, selection.caret);
    const bool collapses = first != last && !key.shift;
    const std::size_t end = toolkit::ToCharacters(box.ShownText()).size();
    if (key.character && !key.ctrl && !key.alt)
        box.UserTypes(key.character);
    else if (key.ctrl && key.name == "A")
        box.UserSelectsAll();
    else if (key.name == "Space")
        box.UserTypes(U' ');
    else if (key.name == "Backspace")
        box.UserErases();
    else if (key.name == "Del" && !key.shift)
        box.UserErasesForward();
    else if (key.name == "Home")
        MoveCaret(box, key, 0);
    else if (key.name == "End")
        MoveCaret(box, key, end);
    else if (key.name == "Left")
        MoveCaret(box, key, collapses ? first : selection.caret - std::min<std::size_t>(selection.caret, 1));
    else if (key.name == "Right")
        MoveCaret(box, key, collapses ? last : std::min(selection.caret + 1, end));
}

void KeyInCombo(toolkit::ComboBoxModel& combo, const KeyPress& key)
{
    using toolkit::ComboKey;
    static const std::map<std::string_view, ComboKey> keys{
        {"F4", ComboKey::Open},     {"Up", ComboKey::Up},           {"Down", ComboKey::Down},
        {"PgUp", ComboKey::PageUp}, {"PgDown", ComboKey::PageDown}, {"Home", ComboKey::Home},
        {"End", ComboKey::End},     {"Return", ComboKey::Take},     {"Tab", ComboKey::Take},
        {"Esc", ComboKey::Leave}};
    if (key.alt && (key.name == "Up" || key.name == "Down"))
        return combo.UserPressesKey(ComboKey::Open);
    if (key.ctrl || key.alt)
        return;
    if (const auto found = keys.find(key.name); found != keys.end())
        combo.UserPressesKey(found->second);
    else if (key.character || key.name == "Space")
        combo.UserTypes(key.character ? key.character : U' ');
}

void KeyInBar(toolkit::NavigationBarModel& bar, const KeyPress& key)
{
    if (key.name == "Left" || key.name == "Right")
        bar.UserWalks(key.name == "Right");
    else if (key.name == "Space")
        bar.UserPresses(bar.CurrentButton());
}

void KeyInGrid(toolkit::GridModel& grid, const KeyPress& key)
{
    using toolkit::GridKey;
    static const std::map<std::string_view, GridKey> keys{
        {"Up", GridKey::Up},           {"Down", GridKey::Down}, {"PgUp", GridKey::PageUp},
        {"PgDown", GridKey::PageDown}, {"Home", GridKey::Home}, {"End", GridKey::End}};
    if (key.name == "Space")
        return grid.UserPressesRow();
    if (const auto found = keys.find(key.name); found != keys.end())
        grid.UserKey(found->second);
}

void KeyInControl(toolkit::WidgetCore& focused, const KeyPress& key)
{
    if (auto* box = dynamic_cast<toolkit::EditCore*>(&focused))
        return KeyInBox(*box, key);
    if (auto* combo = dynamic_cast<toolkit::ComboBoxModel*>(&focused))
        return KeyInCombo(*combo, key);
    if (auto* grid = dynamic_cast<toolkit::GridModel*>(&focused))
        return KeyInGrid(*grid, key);
    if (auto* bar = dynamic_cast<toolkit::NavigationBarModel*>(&focused))
        return KeyInBar(*bar, key);
    if (key.name != "Space")
        return;
    if (auto* button = dynamic_cast<toolkit::CommandButtonModel*>(&focused))
        button->UserPresses();
    else if (auto* check = dynamic_cast<toolkit::CheckBoxModel*>(&focused))
        check->UserPresses();
    else if (auto* option = dynamic_cast<toolkit::OptionButtonModel*>(&focused))
        option->UserPresses();
}

} // namespace

std::string User::Key(const KeyPress& key)
{
    using toolkit::FormKey;
    static const std::map<std::string_view, FormKey> formKeys{{"Tab", FormKey::Tab},
                                                              {"Backtab", FormKey::BackTab},
                                                              {"Return", FormKey::Enter},
                                                              {"Esc", FormKey::Escape}};
    toolkit::FormModel* form = Toolkit().ActiveForm();
    if (!form)
        return "no form is open";
    if (auto refusal = form->Refusal(); !refusal.empty())
        return refusal;
    // An open list has the keyboard for itself.
    auto* combo = dynamic_cast<toolkit::ComboBoxModel*>(form->Focused());
    if (combo && combo->IsListOpen()) {
        KeyInCombo(*combo, key);
        return {};
    }
    const bool isFunctionKey = key.name.size() > 1 && key.name[0] == 'F' && key.name[1] <= '9';
    const bool mayBeShortcut = isFunctionKey || key.ctrl || key.alt;
    if (mayBeShortcut && form->UserPressesShortcut(key.Chord()))
        return {};
    if (const auto found = formKeys.find(key.name); found != formKeys.end() && !key.alt)
        form->UserPressesKey(found->second);
    else if (form->Focused())
        KeyInControl(*form->Focused(), key);
    return {};
}

} // namespace kova::headless
