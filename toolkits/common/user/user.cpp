#include "toolkits/common/user/user.hpp"

#include "toolkits/common/boxes/check_box.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/boxes/find_box.hpp"
#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/event_scope.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/common/whole_number.hpp"

#include <algorithm>
#include <limits>

namespace kova::toolkit {

WidgetCore* User::Reach(std::string_view form, std::string_view control, int index, std::string& refusal)
{
    const FormModel* model = toolkit_.FindForm(form);
    WidgetCore* widget = model ? model->Find(control, index) : nullptr;
    if (!model)
        refusal = std::string(form) + " does not exist";
    else if (!widget)
        refusal = std::string(form) + "." + std::string(control)
            + (index < 0 ? "" : "(" + std::to_string(index) + ")") + " does not exist";
    else
        refusal = widget->Refusal();
    return refusal.empty() ? widget : nullptr;
}

template <class Model>
Model* User::Reach(std::string_view form, std::string_view control, int index, std::string& refusal)
{
    WidgetCore* widget = Reach(form, control, index, refusal);
    auto* model = dynamic_cast<Model*>(widget);
    if (widget && !model)
        refusal = widget->FullName() + " is a " + NameOf(widget->KindOfWidget());
    return model;
}

std::string User::Click(std::string_view form, std::string_view control, int index)
{
    std::string refusal;
    WidgetCore* widget = Reach(form, control, index, refusal);
    if (!widget)
        return refusal;
    if (auto* button = dynamic_cast<CommandButtonModel*>(widget))
        button->UserPresses();
    else if (auto* box = dynamic_cast<CheckBoxModel*>(widget))
        box->UserPresses();
    else if (auto* option = dynamic_cast<OptionButtonModel*>(widget))
        option->UserPresses();
    else
        return widget->FullName() + " is a " + NameOf(widget->KindOfWidget());
    return {};
}

std::string User::ChooseRow(std::string_view form, std::string_view combo, int index, const RowFinder& find)
{
    const EventScope scope(toolkit_);
    std::string refusal;
    auto* box = Reach<ComboBoxModel>(form, combo, index, refusal);
    if (!box)
        return refusal;
    box->UserOpensList();
    if (auto reason = box->Refusal(); !reason.empty())
        return reason;
    // The rows are those that the list has once it is open.
    const std::size_t row = find(box->ShownRows(), refusal);
    if (row >= box->ShownRows().size()) {
        box->UserLeavesList();
        return box->FullName() + " has no row " + refusal;
    }
    box->UserChooses(static_cast<Integer>(row));
    return {};
}

std::string User::Choose(std::string_view form, std::string_view combo, int row, int index)
{
    return ChooseRow(form, combo, index, [row](const auto&, std::string& name) {
        name = std::to_string(row);
        return static_cast<std::size_t>(row);
    });
}

std::string User::Choose(std::string_view form, std::string_view combo, std::string_view text, int index)
{
    return ChooseRow(form, combo, index, [text](const auto& rows, std::string& name) {
        name = "\"" + std::string(text) + "\"";
        const auto found =
            std::find_if(rows.begin(), rows.end(), [text](const auto& row) { return row.text == text; });
        return static_cast<std::size_t>(found - rows.begin());
    });
}

std::string User::ChooseData(std::string_view form, std::string_view combo, Long data, int index)
{
    return ChooseRow(form, combo, index, [data](const auto& rows, std::string& name) {
        name = "with number " + std::to_string(data);
        const auto found =
            std::find_if(rows.begin(), rows.end(), [data](const auto& row) { return row.data == data; });
        return static_cast<std::size_t>(found - rows.begin());
    });
}

std::string User::Type(std::string_view form, std::string_view control, std::string_view text, int index)
{
    const EventScope scope(toolkit_);
    std::string refusal;
    auto* box = Reach<EditCore>(form, control, index, refusal);
    if (!box)
        return refusal;
    if (!box->AllowsTyping())
        return box->FullName() + " is locked";
    box->UserFocuses();
    box->UserSelectsAll();
    if (text.empty() && box->ShownSelection().caret > 0)
        box->UserErases();
    for (const char32_t character : ToCharacters(text))
        box->UserTypes(character);
    return {};
}

std::string User::Press(std::string_view form, std::string_view find, int index)
{
    std::string refusal;
    if (auto* box = Reach<FindBoxModel>(form, find, index, refusal))
        box->UserPresses();
    return refusal;
}

std::string User::PickEntry(std::string_view form, std::string_view entry)
{
    const FormModel* model = toolkit_.FindForm(form);
    auto* menu = model != nullptr ? dynamic_cast<MenuModel*>(model->Find(entry)) : nullptr;
    if (menu == nullptr)
        return std::string(form) + "." + std::string(entry) + " is no menu entry that exists";
    std::string refusal = menu->WhyNotChosen();
    if (refusal.empty())
        menu->UserChooses();
    return refusal;
}

std::string User::PressKey(std::string_view form, FormKey key)
{
    FormModel* model = toolkit_.FindForm(form);
    if (!model)
        return std::string(form) + " does not exist";
    if (auto refusal = model->Refusal(); !refusal.empty())
        return refusal;
    model->UserPressesKey(key);
    return {};
}

std::string User::PressShortcut(std::string_view form, std::string_view shortcut)
{
    FormModel* model = toolkit_.FindForm(form);
    if (!model)
        return std::string(form) + " does not exist";
    if (auto refusal = model->Refusal(); !refusal.empty())
        return refusal;
    if (!model->UserPressesShortcut(shortcut))
        return std::string(form) + " has no key " + std::string(shortcut);
    return {};
}

std::string User::Focus(std::string_view form, std::string_view control, int index)
{
    std::string refusal;
    WidgetCore* widget = Reach(form, control, index, refusal);
    if (widget && !widget->IsFocusable())
        return widget->FullName() + " takes no focus";
    if (widget)
        widget->UserFocuses();
    return refusal;
}

std::string User::Pick(std::string_view form, std::string_view control, const Date& date, int index)
{
    std::string refusal;
    if (auto* box = Reach<DateBoxModel>(form, control, index, refusal))
        box->UserPicks(date);
    return refusal;
}

std::string User::Bar(std::string_view form, std::string_view bar, int button)
{
    std::string refusal;
    auto* model = Reach<NavigationBarModel>(form, bar, -1, refusal);
    if (model && !model->Offers(button))
        return model->FullName() + " does not offer button " + std::to_string(button);
    if (model)
        model->UserPresses(button);
    return refusal;
}

std::string User::CloseForm(std::string_view form)
{
    FormModel* model = toolkit_.FindForm(form);
    if (!model)
        return std::string(form) + " does not exist";
    if (!model->MayBeClosed())
        return model->Refusal();
    model->UserCloses();
    return {};
}

User::Point User::MiddleOf(GridModel& grid, Long row, std::string& refusal)
{
    const GridAxis& rows = grid.RowAxis();
    const GridAxis& columns = grid.ColumnAxis();
    Long column = 0;
    while (column < columns.Count() && columns.Size(column) == 0)
        ++column;
    if (row < 0 || row >= rows.Count() || rows.Size(row) == 0 || column == columns.Count()) {
        refusal = grid.FullName() + " has no row " + std::to_string(row);
        return {};
    }
    const bool scrolledOut = row >= rows.Fixed()
        && (row < rows.First()
            || row >= rows.First() + rows.PageSize(WholeNumber<Long>(grid.State().height)));
    if (scrolledOut)
        grid.UserScrolls(row, columns.First());
    return {static_cast<Twips>(columns.Start(column)) + static_cast<Twips>(columns.Size(column)) / 2,
            static_cast<Twips>(rows.Start(row)) + static_cast<Twips>(rows.Size(row)) / 2};
}

std::string User::Hover(std::string_view form, std::string_view grid, Long row)
{
    const std::string refusal = Rest(form, grid, row);
    toolkit_.ForgetPointer();
    return refusal;
}

std::string User::Rest(std::string_view form, std::string_view grid, Long row)
{
    std::string refusal;
    auto* model = Reach<GridModel>(form, grid, -1, refusal);
    if (!model)
        return refusal;
    const Point middle = MiddleOf(*model, row, refusal);
    if (refusal.empty())
        model->UserMovesMouse(0, 0, middle.x, middle.y);
    return refusal;
}

std::string User::Leave(std::string_view form, std::string_view grid)
{
    std::string refusal;
    if (auto* model = Reach<GridModel>(form, grid, -1, refusal))
        model->UserLeaves();
    return refusal;
}

std::string User::RestAt(std::string_view form, std::string_view grid, Twips x, Twips y)
{
    std::string refusal;
    if (auto* model = Reach<GridModel>(form, grid, -1, refusal))
        model->UserMovesMouse(0, 0, x, y);
    return refusal;
}

std::string User::HoverAt(std::string_view form, std::string_view grid, Twips x, Twips y)
{
    const std::string refusal = RestAt(form, grid, x, y);
    toolkit_.ForgetPointer();
    return refusal;
}

std::string User::Select(std::string_view form, std::string_view grid, Long row)
{
    std::string refusal;
    auto* model = Reach<GridModel>(form, grid, -1, refusal);
    if (!model)
        return refusal;
    const Point middle = MiddleOf(*model, row, refusal);
    if (refusal.empty())
        model->UserClicks(middle.x, middle.y);
    return refusal;
}

std::string User::ClickAt(std::string_view form, std::string_view grid, Twips x, Twips y)
{
    std::string refusal;
    if (auto* model = Reach<GridModel>(form, grid, -1, refusal))
        model->UserClicks(x, y);
    return refusal;
}

std::string User::Drag(std::string_view form, std::string_view grid, Twips x, Twips y, Twips toX, Twips toY)
{
    std::string refusal;
    if (auto* model = Reach<GridModel>(form, grid, -1, refusal)) {
        model->UserPresses(x, y);
        model->UserDrags(toX, toY);
        model->UserReleases(toX, toY);
    }
    return refusal;
}

std::string User::GridKey(std::string_view form, std::string_view grid, toolkit::GridKey key)
{
    std::string refusal;
    if (auto* model = Reach<GridModel>(form, grid, -1, refusal))
        model->UserKey(key);
    return refusal;
}

} // namespace kova::toolkit
