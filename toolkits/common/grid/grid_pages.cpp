// Keys that lead out of the grid's rows: to other pages, and to what a row stands for.

#include "toolkits/common/command_button.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/shortcuts.hpp"

namespace kova::toolkit {

NavigationBarModel* GridModel::PageBar() const
{
    const std::string& name = Design().pageBar;
    return name.empty() ? nullptr : dynamic_cast<NavigationBarModel*>(GetForm().Find(name));
}

CommandButtonModel* GridModel::RowButton() const
{
    const std::string& name = Design().rowButton;
    return name.empty() ? nullptr : dynamic_cast<CommandButtonModel*>(GetForm().Find(name));
}

bool GridModel::OffersPage(int button) const
{
    const NavigationBarModel* bar = PageBar();
    return bar && bar->TakesInput() && bar->Offers(button);
}

bool GridModel::UserTurnsTo(int button)
{
    if (!OffersPage(button))
        return false;
    const bool isNeighbour =
        button == NavigationBarModel::PreviousPage || button == NavigationBarModel::NextPage;
    const bool toLastRow =
        button == NavigationBarModel::PreviousPage || button == NavigationBarModel::LastPage;
    NavigationBarModel& bar = *PageBar();
    GetForm().PressKeepingFocus(bar, [&bar, button] { bar.UserPresses(button); });
    if (IsGone() || !HasFocus() || !TakesInput() || rows_.Count() <= rows_.Fixed())
        return true;
    // Whose mouse rests on a row goes on with the row that has come under it.
    if (!isNeighbour && MouseRests())
        return true;
    // The row of that number on the former page is left first.
    GetForm().Raise(mouseMove_, Integer{0}, Integer{0}, MiddleOfFirstColumn(), Twips{-1});
    UserKey(toLastRow ? GridKey::End : GridKey::Home);
    return true;
}

bool GridModel::TakesFormKey(std::string_view key)
{
    const bool toFirst = key == FirstPageKey;
    const WidgetCore* focused = GetForm().Focused();
    if ((!toFirst && key != LastPageKey) || (focused && focused->HasCaret()) || !PageBar())
        return false;
    UserTurnsTo(toFirst ? NavigationBarModel::FirstPage : NavigationBarModel::LastPage);
    return true;
}

bool GridModel::TurnsPage(GridKey key)
{
    const Long last = rows_.Count() - 1;
    if (key == GridKey::PageDown && cursor_.row == last)
        return UserTurnsTo(NavigationBarModel::NextPage);
    if (key == GridKey::PageUp && cursor_.row <= rows_.Fixed())
        return UserTurnsTo(NavigationBarModel::PreviousPage);
    return false;
}

// The button belongs to the row that the user has reached; where he has reached none, it is the cursor's.
bool GridModel::PressesRowButton()
{
    CommandButtonModel* button = RowButton();
    if (!button || cursor_.row < rows_.Fixed() || cursor_.row >= rows_.Count())
        return false;
    if (!button->TakesInput())
        WalkTo(cursor_.row);
    if (!IsGone() && button->TakesInput())
        GetForm().PressKeepingFocus(*button, [button] { button->UserPresses(); });
    return true;
}

void GridModel::AddRowKeys(std::vector<KeyHelp>& keys) const
{
    if (!TakesInput() || rows_.Count() <= rows_.Fixed())
        return;
    keys.push_back({"↑ ↓", "Ir de linha em linha na lista"});
    if (const CommandButtonModel* button = RowButton())
        keys.push_back({"Enter", button->Purpose() + " a linha"});
    else if (HasClick())
        keys.push_back({"Enter", "Escolher a linha"});
    AddPageKeys(keys);
}

void GridModel::AddPageKeys(std::vector<KeyHelp>& keys) const
{
    if (OffersPage(NavigationBarModel::NextPage)) {
        keys.push_back({"PgDn", "Na última linha, ir para a próxima página"});
        keys.push_back({"Ctrl+End", "Ir para a última página"});
    }
    if (OffersPage(NavigationBarModel::PreviousPage)) {
        keys.push_back({"PgUp", "Na primeira linha, ir para a página anterior"});
        keys.push_back({"Ctrl+Home", "Ir para a primeira página"});
    }
}

} // namespace kova::toolkit
