// What the grid's views read, and how they learn what to paint anew.

#include "toolkits/common/grid/grid.hpp"

#include <algorithm>

namespace kova::toolkit {

void GridModel::Touch(Long firstRow, Long lastRow)
{
    const bool wasEmpty = change_.IsEmpty();
    if (wasEmpty) {
        change_.firstRow = firstRow;
        change_.lastRow = lastRow;
    } else {
        change_.firstRow = std::min(change_.firstRow, firstRow);
        change_.lastRow = std::max(change_.lastRow, lastRow);
    }
    if (wasEmpty)
        Announce();
}

void GridModel::TouchAll()
{
    const bool wasEmpty = change_.IsEmpty();
    change_.all = true;
    if (wasEmpty)
        Announce();
}

void GridModel::Announce()
{
    if (redraw_)
        Tell(Aspect::Content);
}

GridChange GridModel::TakeChange()
{
    const GridChange change = change_;
    change_ = {};
    return change;
}

const Text& GridModel::PictureOfCell(Long row, Long col) const
{
    return cells_.PictureName(cells_.LookAt(row, col).picture);
}

Colour GridModel::BackColorOf(Long row, Long col) const
{
    if (IsHighlighted(row, col))
        return look_.backColorSel;
    if (const Colour own = cells_.LookAt(row, col).back; own != 0)
        return own;
    return IsFixed(row, col) ? look_.backColorFixed : look_.backColor;
}

Colour GridModel::ForeColorOf(Long row, Long col) const
{
    if (IsHighlighted(row, col))
        return look_.foreColorSel;
    if (const Colour own = cells_.LookAt(row, col).fore; own != 0)
        return own;
    return IsFixed(row, col) ? look_.foreColorFixed : look_.foreColor;
}

bool GridModel::IsHighlighted(Long row, Long col) const
{
    if (IsFixed(row, col))
        return false;
    const auto [firstRow, lastRow] = std::minmax(cursor_.row, corner_.row);
    const auto [firstCol, lastCol] = std::minmax(cursor_.col, corner_.col);
    const bool inRows = row >= firstRow && row <= lastRow;
    const bool inCols = col >= firstCol && col <= lastCol;
    switch (selectionMode_) {
    case 1: return inRows;
    case 2: return inCols;
    default: return inRows && inCols && !(cursor_ == corner_);
    }
}

std::optional<GridCell> GridModel::HitTest(Twips x, Twips y) const
{
    const auto row = rows_.At(y);
    const auto col = columns_.At(x);
    if (!row || !col)
        return std::nullopt;
    return GridCell{*row, *col};
}

} // namespace kova::toolkit
