// Keys that lead out of the grid's rows: to other pages, and to what a row stands for.

#include "toolkits/common/command_button.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/navigation_bar.hpp"

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

} // namespace kova::toolkit
