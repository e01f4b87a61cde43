// Who stands at a row of the grid, and what he is told when the rows change under him.

#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/toolkit.hpp"

#include <algorithm>

namespace kova::toolkit {

namespace {

/// A place above and left of all cells.
constexpr Twips Outside = -1;

/// Forms count rows from the heading down: behind it a place is told as it would be were no row scrolled out.
Twips ToldPlace(const GridAxis& rows, Twips y)
{
    const auto firstRow = static_cast<Twips>(rows.Start(rows.First()));
    if (y < firstRow)
        return y;
    return y + firstRow - static_cast<Twips>(rows.Start(rows.Fixed()));
}

} // namespace

void GridModel::RaiseMouseMoveAt(Twips x, Twips y)
{
    GetForm().Raise(mouseMove_, Integer{0}, Integer{0}, x, ToldPlace(rows_, y));
}

void GridModel::UserMovesMouse(Integer button, Integer shift, Twips x, Twips y)
{
    const bool wasUntold = pointer_.isUntold;
    pointer_ = {.kind = Pointer::Kind::Mouse, .x = x, .y = y, .isUntold = wasUntold};
    if (TakesInput())
        ByUser([=, this] { GetForm().Raise(mouseMove_, button, shift, x, ToldPlace(rows_, y)); });
    else
        MarkUntold();
}

void GridModel::UserMovesAbove(Twips x, Twips y)
{
    if (pointer_.kind != Pointer::Kind::Mouse)
        return;
    pointer_.x = x;
    pointer_.y = y;
}

void GridModel::UserLeaves()
{
    if (pointer_.kind != Pointer::Kind::Mouse)
        return;
    pointer_.x = pointer_.y = Outside;
    MarkUntold();
    // An event of its own, at whose end it is told where the form takes input.
    const EventScope scope(GetForm().GetToolkit());
}

bool GridModel::MouseRests() const
{
    return pointer_.kind == Pointer::Kind::Mouse && HitTest(pointer_.x, pointer_.y);
}

void GridModel::RowsChanged()
{
    if (pointer_.kind != Pointer::Kind::Nobody)
        MarkUntold();
}

void GridModel::MarkUntold()
{
    pointer_.isUntold = true;
    GetForm().GetToolkit().PointerIsUntold();
}

// The list forgets the row first: it takes one that it knows already for no news.
bool GridModel::TellPointer()
{
    if (!pointer_.isUntold)
        return true;
    if (!GetForm().Refusal().empty() || GetForm().GetToolkit().IsPausing())
        return false;
    pointer_.isUntold = false;
    if (!mouseMove_ || rows_.Count() <= rows_.Fixed())
        return true;
    GetForm().ByUser([this] {
        RaiseMouseMoveAt(Outside, Outside);
        if (!TakesInput() || rows_.Count() <= rows_.Fixed())
            return;
        if (pointer_.kind == Pointer::Kind::Keys)
            WalkTo(std::clamp<Long>(pointer_.row, rows_.Fixed(), rows_.Count() - 1));
        else if (MouseRests())
            RaiseMouseMoveAt(pointer_.x, pointer_.y);
    });
    // The form's own writes meanwhile are no news.
    pointer_.isUntold = false;
    return true;
}

} // namespace kova::toolkit
