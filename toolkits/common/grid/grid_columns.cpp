// Sizes, alignments and numbers of rows and columns.

#include "toolkits/common/grid/grid.hpp"

#include <algorithm>

namespace kova::toolkit {

Long GridModel::ColWidth(Long col) const
{
    if (auto* observer = Observer())
        observer->Read(AccessToElement("ColWidth", col));
    CheckCol(col);
    return columns_.Size(col);
}

void GridModel::ColWidth(Long col, Long width)
{
    if (auto* observer = Observer())
        observer->Write(AccessToElement("ColWidth", col), Value(width));
    CheckCol(col);
    columns_.Size(col, std::max<Long>(width, 0));
    TouchAll();
}

Integer GridModel::ColAlignment(Long col) const
{
    if (auto* observer = Observer())
        observer->Read(AccessToElement("ColAlignment", col));
    CheckCol(col);
    return AlignmentOf(col);
}

void GridModel::ColAlignment(Long col, Integer alignment)
{
    if (auto* observer = Observer())
        observer->Write(AccessToElement("ColAlignment", col), Value(alignment));
    CheckCol(col);
    if (alignment < 0 || alignment > 9)
        throw Failure(FailureNumber::BadPropertyValue);
    columnData_[static_cast<std::size_t>(col)].alignment = alignment;
    TouchAll();
}

Long GridModel::ColData(Long col) const
{
    if (auto* observer = Observer())
        observer->Read(AccessToElement("ColData", col));
    CheckCol(col);
    return columnData_[static_cast<std::size_t>(col)].data;
}

void GridModel::ColData(Long col, Long data)
{
    if (auto* observer = Observer())
        observer->Write(AccessToElement("ColData", col), Value(data));
    CheckCol(col);
    columnData_[static_cast<std::size_t>(col)].data = data;
}

Long GridModel::RowHeight(Long row) const
{
    if (auto* observer = Observer())
        observer->Read(AccessToElement("RowHeight", row));
    CheckRow(row);
    return rows_.Size(row);
}

void GridModel::RowHeight(Long row, Long height)
{
    if (auto* observer = Observer())
        observer->Write(AccessToElement("RowHeight", row), Value(height));
    CheckRow(row);
    rows_.Size(row, height);
    TouchAll();
    RowsChanged();
}

void GridModel::TopRow(Long row)
{
    Writing("TopRow", row);
    rows_.First(row, WindowHeight());
    TouchAll();
    RowsChanged();
}

} // namespace kova::toolkit
