#include "toolkits/common/grid/grid.hpp"

#include "toolkits/common/form.hpp"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace kova::toolkit {

namespace {

constexpr std::int64_t CellLimit = 350000;

} // namespace

GridModel::GridModel(FormModel& form, const ControlDesign& design) : WidgetModel(form, design)
{
    look_.font = {design.fontName, design.fontSize, design.fontBold};
    selectionMode_ = design.selectionMode;
    Shape(2, 2);
    rows_.Fixed(1);
    columns_.Fixed(1);
    cursor_ = corner_ = {1, 1};
}

void GridModel::CheckRow(Long row) const
{
    if (row < 0 || row >= rows_.Count())
        throw Failure(FailureNumber::BadGridRow);
}

void GridModel::CheckCol(Long col) const
{
    if (col < 0 || col >= columns_.Count())
        throw Failure(FailureNumber::BadGridColumn);
}

void GridModel::CheckCell(Long row, Long col) const
{
    if (row < 0 || row >= rows_.Count() || col < 0 || col >= columns_.Count())
        throw Failure(FailureNumber::BadListRow);
}

void GridModel::CheckCurrent() const
{
    CheckRow(cursor_.row);
    CheckCol(cursor_.col);
}

void GridModel::CheckSize(Long rows, Long cols) const
{
    const bool tooMany =
        Design().cellLimit && static_cast<std::int64_t>(rows) * static_cast<std::int64_t>(cols) > CellLimit;
    if (rows < 0 || cols < 0 || tooMany)
        throw Failure(FailureNumber::BadPropertyValue);
}

void GridModel::Shape(Long rows, Long cols)
{
    try {
        cells_.Resize(rows, cols);
        rows_.Count(rows);
        columns_.Count(cols);
        columnData_.resize(static_cast<std::size_t>(cols));
    } catch (const std::bad_alloc&) {
        throw Failure(FailureNumber::OutOfMemory);
    } catch (const std::length_error&) {
        throw Failure(FailureNumber::OutOfMemory);
    }
    ClampCursor();
    TouchAll();
    RowsChanged();
}

void GridModel::ClampCursor()
{
    for (GridCell* cell : {&cursor_, &corner_}) {
        cell->row = std::clamp<Long>(cell->row, 0, std::max<Long>(rows_.Count() - 1, 0));
        cell->col = std::clamp<Long>(cell->col, 0, std::max<Long>(columns_.Count() - 1, 0));
    }
}

void GridModel::Rows(Long count)
{
    Writing("Rows", count);
    CheckSize(count, columns_.Count());
    Shape(count, columns_.Count());
}

void GridModel::Cols(Long count)
{
    Writing("Cols", count);
    CheckSize(rows_.Count(), count);
    Shape(rows_.Count(), count);
}

void GridModel::FixedRows(Long count)
{
    Writing("FixedRows", count);
    if (count < 0 || (count > 0 && count >= rows_.Count()))
        throw Failure(FailureNumber::BadPropertyValue);
    rows_.Fixed(count);
    TouchAll();
}

void GridModel::FixedCols(Long count)
{
    Writing("FixedCols", count);
    if (count < 0 || (count > 0 && count >= columns_.Count()))
        throw Failure(FailureNumber::BadPropertyValue);
    columns_.Fixed(count);
    TouchAll();
}

void GridModel::Select(GridCell cursor, GridCell corner)
{
    if (cursor == cursor_ && corner == corner_)
        return;
    Touch(std::min(cursor_.row, corner_.row), std::max(cursor_.row, corner_.row));
    cursor_ = cursor;
    corner_ = corner;
    Touch(std::min(cursor_.row, corner_.row), std::max(cursor_.row, corner_.row));
    GetForm().Raise(selChange_);
}

void GridModel::Row(Long row)
{
    Writing("Row", row);
    CheckRow(row);
    Select({row, cursor_.col}, {row, cursor_.col});
}

void GridModel::Col(Long col)
{
    Writing("Col", col);
    CheckCol(col);
    Select({cursor_.row, col}, {cursor_.row, col});
}

void GridModel::RowSel(Long row)
{
    Writing("RowSel", row);
    CheckRow(row);
    Select(cursor_, {row, corner_.col});
}

void GridModel::ColSel(Long col)
{
    Writing("ColSel", col);
    CheckCol(col);
    Select(cursor_, {corner_.row, col});
}

MemberAccess GridModel::AccessToCell(std::string_view member, Long row, Long col) const
{
    MemberAccess access = AccessToElement(member, row);
    access.indexCount = 2;
    access.indexes[1] = col;
    return access;
}

Text GridModel::TextMatrix(Long row, Long col) const
{
    if (auto* observer = Observer())
        observer->Read(AccessToCell("TextMatrix", row, col));
    CheckCell(row, col);
    return cells_.TextAt(row, col);
}

void GridModel::TextMatrix(Long row, Long col, const Text& text)
{
    if (auto* observer = Observer())
        observer->Write(AccessToCell("TextMatrix", row, col), Value(text));
    CheckCell(row, col);
    cells_.Write(row, col, text);
    Touch(row, row);
    RowsChanged();
}

void GridModel::Clear()
{
    Calling("Clear");
    cells_.Clear();
    TouchAll();
    RowsChanged();
}

void GridModel::SelectionMode(Integer value)
{
    Writing("SelectionMode", value);
    if (value < 0 || value > 2)
        throw Failure(FailureNumber::BadPropertyValue);
    if (value == selectionMode_)
        return;
    selectionMode_ = value;
    TouchAll();
}

void GridModel::Redraw(bool value)
{
    Writing("Redraw", value);
    if (redraw_ == value)
        return;
    redraw_ = value;
    if (redraw_ && !change_.IsEmpty())
        Tell(Aspect::Content);
}

void GridModel::RaiseLostFocus() { GetForm().Raise(lostFocus_); }

void GridModel::DropHandlers()
{
    click_ = nullptr;
    selChange_ = nullptr;
    mouseMove_ = nullptr;
    lostFocus_ = nullptr;
}

} // namespace kova::toolkit
