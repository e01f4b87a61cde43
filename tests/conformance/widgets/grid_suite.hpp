#pragma once

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

/// A form with a grid of 9000 by 4500 twips, and what tests of grids share.
class GridTest : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::MSFlexGrid, "msfg");
        ControlDesign& boundless = Has(WidgetKind::MSFlexGrid, "msfgSemLimite");
        boundless.cellLimit = false;
        boundless.selectionMode = 1;
        boundless.height = 1500;
        Has(WidgetKind::KVTextBox, "kvtxt").top = 7500;
        Open();
        grid_ = &Get<MSFlexGrid>("msfg");
    }

    /// Columns of 1500 and rows of 450 twips; each cell holds "row/column".
    void Fill(Long rows, Long cols)
    {
        grid_->Rows(rows);
        grid_->Cols(cols);
        for (Long col = 0; col < cols; ++col)
            grid_->ColWidth(col, 1500);
        for (Long row = 0; row < rows; ++row) {
            grid_->RowHeight(row, 450);
            for (Long col = 0; col < cols; ++col)
                grid_->TextMatrix(row, col, std::to_string(row) + "/" + std::to_string(col));
        }
    }

    /// "Row,Col RowSel,ColSel"
    std::string Cursor() const
    {
        return std::to_string(grid_->Row()) + "," + std::to_string(grid_->Col()) + " "
            + std::to_string(grid_->RowSel()) + "," + std::to_string(grid_->ColSel());
    }

    MSFlexGrid* grid_ = nullptr;
};

} // namespace kova::conformance
