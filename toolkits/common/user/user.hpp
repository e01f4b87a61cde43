#pragma once

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/widgets/widget.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kova::toolkit {

class GridModel;
class ToolkitModel;
class WidgetCore;
enum class FormKey;
enum class GridKey;
struct ComboRow;

/// What a person at the screen does, by the names of forms and controls. Where several forms carry a
/// name, the topmost one is meant.
///
/// Each function answers "" where it was done, or why the user could not do it, as in
/// "frmLista.kvcmdAlterar is not visible"; nothing has changed then.
class User {
public:
    explicit User(ToolkitModel& toolkit) : toolkit_(toolkit) { }

    /// Presses a button, check box or option button.
    std::string Click(std::string_view form, std::string_view control, int index = -1);
    /// Opens a combo's list, which raises DropDown, and picks a row. Where the row is missing then, the
    /// list has been opened nevertheless.
    std::string Choose(std::string_view form, std::string_view combo, int row, int index = -1);
    std::string Choose(std::string_view form, std::string_view combo, std::string_view text, int index = -1);
    /// The first row with that number of the code's.
    std::string ChooseData(std::string_view form, std::string_view combo, Long data, int index = -1);
    /// Moves the focus to a box and replaces its content key by key; "" empties it.
    std::string Type(std::string_view form, std::string_view control, std::string_view text, int index = -1);
    /// Presses the button of a find box.
    std::string Press(std::string_view form, std::string_view find, int index = -1);
    /// Chooses an entry of a menu, as if the menu were open.
    std::string PickEntry(std::string_view form, std::string_view entry);
    std::string PressKey(std::string_view form, FormKey key);
    /// Presses a key such as "F4" or "Ctrl+1".
    std::string PressShortcut(std::string_view form, std::string_view shortcut);
    std::string Focus(std::string_view form, std::string_view control, int index = -1);
    /// Picks a day in the calendar of a date box.
    std::string Pick(std::string_view form, std::string_view control, const Date& date, int index = -1);
    /// Moves the mouse over the middle of a row, scrolled into view where it is not, and on: what changes
    /// there later is told to nobody.
    std::string Hover(std::string_view form, std::string_view grid, Long row);
    /// Places are twips inside the grid.
    std::string HoverAt(std::string_view form, std::string_view grid, Twips x, Twips y);
    /// Moves the mouse to the middle of a row, where it stays.
    std::string Rest(std::string_view form, std::string_view grid, Long row);
    std::string RestAt(std::string_view form, std::string_view grid, Twips x, Twips y);
    /// Moves the mouse away from the grid and what covers it.
    std::string Leave(std::string_view form, std::string_view grid);
    /// Clicks the middle of a row.
    std::string Select(std::string_view form, std::string_view grid, Long row);
    std::string ClickAt(std::string_view form, std::string_view grid, Twips x, Twips y);
    /// Presses at one place, moves to another one with the button down and releases it there.
    std::string Drag(std::string_view form, std::string_view grid, Twips x, Twips y, Twips toX, Twips toY);
    std::string GridKey(std::string_view form, std::string_view grid, toolkit::GridKey key);
    /// Presses a button of a navigation bar, 1 to 4.
    std::string Bar(std::string_view form, std::string_view bar, int button);
    /// The window's own close button.
    std::string CloseForm(std::string_view form);

protected:
    ToolkitModel& Toolkit() const { return toolkit_; }

private:
    /// The number of the row that is meant, beyond the last where there is none; `name` takes what a refusal
    /// calls it.
    using RowFinder = std::function<std::size_t(const std::vector<ComboRow>& rows, std::string& name)>;
    std::string ChooseRow(std::string_view form, std::string_view combo, int index, const RowFinder& find);
    /// The control as its model where the user can act on it; otherwise null, with the reason.
    template <class Model>
    Model* Reach(std::string_view form, std::string_view control, int index, std::string& refusal);
    WidgetCore* Reach(std::string_view form, std::string_view control, int index, std::string& refusal);
    struct Point {
        Twips x = 0;
        Twips y = 0;
    };
    /// The middle of a row, on show after the call; `refusal` says where there is none.
    Point MiddleOf(GridModel& grid, Long row, std::string& refusal);

    ToolkitModel& toolkit_;
};

} // namespace kova::toolkit
