// What the user does with the grid.

#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"

#include <algorithm>
#include <utility>

namespace kova::toolkit {

void GridModel::UserPresses(Twips x, Twips y)
{
    pressed_.reset();
    ByUser([this, x, y] {
        if (!FocusForPress())
            return;
        const auto cell = HitTest(x, y);
        if (!cell)
            return;
        pressed_ = cell;
        if (cell->row < rows_.Fixed())
            return;
        const GridCell free{cell->row, std::max(cell->col, columns_.Fixed())};
        Select(free, free);
    });
}

void GridModel::UserReleases(Twips x, Twips y)
{
    const auto pressed = std::exchange(pressed_, std::nullopt);
    ByUser([&] {
        if (!pressed || HitTest(x, y) != pressed)
            return;
        if (pressed->row < rows_.Fixed())
            ClickHeader();
        else
            GetForm().Raise(click_);
    });
}

void GridModel::UserClicks(Twips x, Twips y)
{
    UserPresses(x, y);
    UserReleases(x, y);
}

void GridModel::ClickHeader()
{
    struct CursorBack {
        GridModel& grid;
        Long row;
        ~CursorBack()
        {
            if (grid.cursor_.row == 0)
                grid.cursor_.row = std::clamp<Long>(row, 0, std::max<Long>(grid.rows_.Count() - 1, 0));
        }
    } const back{*this, cursor_.row};
    cursor_.row = 0;
    GetForm().Raise(click_);
}

void GridModel::UserDrags(Twips x, Twips y)
{
    ByUser([this, x, y] {
        const auto cell = HitTest(x, y);
        if (cell && !IsFixed(cell->row, cell->col))
            Select(cursor_, *cell);
    });
}

Long GridModel::RowReached(GridKey key) const
{
    const Long page = rows_.PageSize(WindowHeight());
    const Long last = rows_.Count() - 1;
    switch (key) {
    case GridKey::Up: return std::max(cursor_.row - 1, rows_.Fixed());
    case GridKey::Down: return std::clamp(cursor_.row + 1, rows_.Fixed(), last);
    case GridKey::PageUp: return std::max(cursor_.row - page, rows_.Fixed());
    case GridKey::PageDown: return std::clamp(cursor_.row + page, rows_.Fixed(), last);
    case GridKey::Home: return rows_.Fixed();
    case GridKey::End: return last;
    }
    return cursor_.row;
}

Twips GridModel::MiddleOfFirstColumn() const
{
    for (Long col = columns_.Fixed() > 0 ? 0 : columns_.First(); col < columns_.Count(); ++col) {
        if (columns_.Size(col) > 0)
            return static_cast<Twips>(columns_.Start(col)) + static_cast<Twips>(columns_.Size(col)) / 2;
    }
    return 0;
}

void GridModel::UserKey(GridKey key)
{
    ByUser([this, key] {
        if (rows_.Count() > rows_.Fixed() && !TurnsPage(key))
            WalkTo(RowReached(key));
    });
}

void GridModel::WalkTo(Long row)
{
    const GridCell reached{row, cursor_.col};
    pointer_ = {.kind = Pointer::Kind::Keys, .row = row};
    rows_.BringIntoView(reached.row, WindowHeight());
    TouchAll();
    Select(reached, reached);
    if (!TakesInput() || reached.row >= rows_.Count())
        return;
    const auto middle =
        static_cast<Twips>(rows_.Start(reached.row)) + static_cast<Twips>(rows_.Size(reached.row)) / 2;
    RaiseMouseMoveAt(MiddleOfFirstColumn(), middle);
}

void GridModel::UserPressesRow()
{
    ByUser([this] {
        if (cursor_.row >= rows_.Fixed() && cursor_.row < rows_.Count())
            GetForm().Raise(click_);
    });
}

bool GridModel::TakesEnter()
{
    if (!PressesRowButton())
        UserPressesRow();
    return true;
}

void GridModel::UserScrolls(Long topRow, Long leftCol)
{
    ByUser([this, topRow, leftCol] {
        const GridCell before{rows_.First(), columns_.First()};
        rows_.First(topRow, WindowHeight());
        columns_.First(leftCol, WindowWidth());
        if (before == GridCell{rows_.First(), columns_.First()})
            return;
        TouchAll();
        RowsChanged();
    });
}

void GridModel::UserResizesColumn(Long col, Long width)
{
    ByUser([this, col, width] {
        const bool allowed = look_.allowUserResizing == 1 || look_.allowUserResizing == 3;
        if (!allowed || col < 0 || col >= columns_.Count())
            return;
        columns_.Size(col, std::max<Long>(width, 0));
        TouchAll();
    });
}

void GridModel::UserResizesRow(Long row, Long height)
{
    ByUser([this, row, height] {
        const bool allowed = look_.allowUserResizing == 2 || look_.allowUserResizing == 3;
        if (!allowed || row < 0 || row >= rows_.Count())
            return;
        rows_.Size(row, std::max<Long>(height, 0));
        TouchAll();
    });
}

} // namespace kova::toolkit
