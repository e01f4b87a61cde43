// The grid's shape, cells and sizes.

#include "tests/conformance/widgets/grid_suite.hpp"

namespace kova::conformance {

class GridShape : public GridTest { };
KOVA_ON_EVERY_BENCH(GridShape);

TEST_P(GridShape, IsTwoByTwoWithAHeaderWhenFresh)
{
    EXPECT_EQ(grid_->Rows(), 2);
    EXPECT_EQ(grid_->Cols(), 2);
    EXPECT_EQ(grid_->FixedRows(), 1);
    EXPECT_EQ(grid_->FixedCols(), 1);
    EXPECT_EQ(Cursor(), "1,1 1,1");
    EXPECT_TRUE(grid_->Redraw());
    EXPECT_EQ(grid_->TextMatrix(1, 1), "");
    EXPECT_EQ(grid_->TopRow(), 1);
    EXPECT_EQ(grid_->SelectionMode(), 0);
}

TEST_P(GridShape, LosesTheCellsOfRowsCutOffForGood)
{
    Fill(6, 3);
    grid_->Rows(3);
    EXPECT_EQ(grid_->TextMatrix(2, 2), "2/2");
    grid_->Rows(6);
    EXPECT_EQ(grid_->TextMatrix(2, 2), "2/2");
    EXPECT_EQ(grid_->TextMatrix(3, 2), "");
    EXPECT_EQ(grid_->TextMatrix(5, 0), "");
}

TEST_P(GridShape, LosesTheCellsOfColumnsCutOffForGood)
{
    Fill(3, 5);
    grid_->Cols(2);
    grid_->Cols(4);
    EXPECT_EQ(grid_->TextMatrix(0, 1), "0/1");
    EXPECT_EQ(grid_->TextMatrix(2, 1), "2/1");
    EXPECT_EQ(grid_->TextMatrix(2, 2), "");
}

TEST_P(GridShape, MovesTheCursorToTheLastRowWhereItsRowIsCutOff)
{
    Fill(8, 3);
    grid_->Row(6);
    grid_->Col(2);
    grid_->Rows(4);
    EXPECT_EQ(Cursor(), "3,2 3,2");
    grid_->Cols(2);
    EXPECT_EQ(Cursor(), "3,1 3,1");
}

TEST_P(GridShape, KeepsTheCursorWhereRowsAreAddedOrOthersCutOff)
{
    Fill(8, 3);
    grid_->Row(2);
    grid_->Rows(20);
    grid_->Rows(5);
    grid_->Cols(9);
    EXPECT_EQ(Cursor(), "2,1 2,1");
}

TEST_P(GridShape, RaisesNoEventWhereItIsCutOrGrows)
{
    Fill(8, 3);
    grid_->Row(6);
    grid_->OnSelChange(Note("sel"));
    grid_->Rows(2);
    grid_->Cols(2);
    grid_->Rows(9);
    grid_->Clear();
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(GridShape, HasAtMostAllRowsButOneFixed)
{
    grid_->Rows(3);
    EXPECT_EQ(FailureOf([this] { grid_->FixedRows(3); }), 380);
    EXPECT_EQ(FailureOf([this] { grid_->FixedRows(-1); }), 380);
    grid_->FixedRows(2);
    EXPECT_EQ(grid_->FixedRows(), 2);
    EXPECT_EQ(FailureOf([this] { grid_->FixedCols(2); }), 380);
    EXPECT_EQ(FailureOf([this] { grid_->FixedCols(-1); }), 380);
    grid_->FixedCols(0);
    EXPECT_EQ(grid_->FixedCols(), 0);
}

TEST_P(GridShape, MayBeCutDownToItsFixedRows)
{
    Fill(5, 3);
    grid_->Rows(1);
    EXPECT_EQ(grid_->Rows(), 1);
    EXPECT_EQ(grid_->FixedRows(), 1);
    EXPECT_EQ(grid_->Row(), 0);
    EXPECT_EQ(grid_->TextMatrix(0, 2), "0/2");
    grid_->Rows(3);
    EXPECT_EQ(grid_->FixedRows(), 1);
    EXPECT_EQ(grid_->TextMatrix(0, 2), "0/2");
}

TEST_P(GridShape, FailsForANegativeShapeAndForTooManyCells)
{
    EXPECT_EQ(FailureOf([this] { grid_->Rows(-1); }), 380);
    EXPECT_EQ(FailureOf([this] { grid_->Cols(-1); }), 380);
    grid_->Cols(10);
    grid_->Rows(35000);
    EXPECT_EQ(FailureOf([this] { grid_->Rows(35001); }), 380);
    EXPECT_EQ(FailureOf([this] { grid_->Cols(11); }), 380);
    EXPECT_EQ(grid_->Rows(), 35000);
    EXPECT_EQ(grid_->Cols(), 10);
}

TEST_P(GridShape, HasNoLimitOfCellsWhereTheDesignSetsNone)
{
    auto& grid = Get<MSFlexGrid>("msfgSemLimite");
    grid.Cols(10);
    grid.Rows(40000);
    grid.TextMatrix(39999, 9, "último");
    EXPECT_EQ(grid.TextMatrix(39999, 9), "último");
    grid.Row(39999);
    EXPECT_EQ(grid.Row(), 39999);
}

TEST_P(GridShape, FailsForACellOutside)
{
    Fill(4, 3);
    for (const auto& [row, col] : {std::pair<Long, Long>{4, 0}, {-1, 0}, {0, 3}, {0, -1}}) {
        EXPECT_EQ(FailureOf([&] { grid_->TextMatrix(row, col); }), 381);
        EXPECT_EQ(FailureOf([&] { grid_->TextMatrix(row, col, "x"); }), 381);
    }
}

TEST_P(GridShape, FailsForARowOutside)
{
    Fill(4, 3);
    for (const Long row : {Long(-1), Long(4)}) {
        EXPECT_EQ(FailureOf([&] { grid_->Row(row); }), 30009);
        EXPECT_EQ(FailureOf([&] { grid_->RowSel(row); }), 30009);
        EXPECT_EQ(FailureOf([&] { grid_->RowHeight(row); }), 30009);
        EXPECT_EQ(FailureOf([&] { grid_->RowHeight(row, 300); }), 30009);
    }
    EXPECT_EQ(Cursor(), "1,1 1,1");
}

TEST_P(GridShape, FailsForAColumnOutside)
{
    Fill(4, 3);
    for (const Long col : {Long(-1), Long(3)}) {
        EXPECT_EQ(FailureOf([&] { grid_->Col(col); }), 30010);
        EXPECT_EQ(FailureOf([&] { grid_->ColSel(col); }), 30010);
        EXPECT_EQ(FailureOf([&] { grid_->ColWidth(col); }), 30010);
        EXPECT_EQ(FailureOf([&] { grid_->ColWidth(col, 300); }), 30010);
        EXPECT_EQ(FailureOf([&] { grid_->ColAlignment(col, 1); }), 30010);
        EXPECT_EQ(FailureOf([&] { grid_->ColData(col, 1); }), 30010);
    }
    EXPECT_EQ(Cursor(), "1,1 1,1");
}

TEST_P(GridShape, WritesACellWithoutMovingTheCursor)
{
    Fill(4, 3);
    grid_->OnSelChange(Note("sel"));
    grid_->TextMatrix(3, 2, "Rex\r\nBob");
    EXPECT_EQ(grid_->TextMatrix(3, 2), "Rex\r\nBob");
    EXPECT_EQ(Cursor(), "1,1 1,1");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(GridShape, EmptiesAllCellsByClearAndKeepsItsShape)
{
    Fill(4, 3);
    grid_->ColWidth(2, 777);
    grid_->Row(2);
    grid_->CellBackColor(colours::Red);
    grid_->CellPicture({"atendido"});
    grid_->Clear();
    EXPECT_EQ(grid_->Rows(), 4);
    EXPECT_EQ(grid_->Cols(), 3);
    EXPECT_EQ(grid_->TextMatrix(0, 0), "");
    EXPECT_EQ(grid_->TextMatrix(3, 2), "");
    EXPECT_EQ(Bench::PictureOf(*grid_, 2, 1), "");
    EXPECT_NE(User().GroundOf(*grid_, 2, 1), colours::Red);
    EXPECT_EQ(grid_->ColWidth(2), 777);
    EXPECT_EQ(grid_->Row(), 2);
}

TEST_P(GridShape, GivesColumnsAndRowsTheirDefaultSize)
{
    const Long width = grid_->ColWidth(0);
    const Long height = grid_->RowHeight(0);
    EXPECT_GT(width, 0);
    EXPECT_GT(height, 0);
    grid_->ColWidth(0, 1234);
    EXPECT_EQ(grid_->ColWidth(0), 1234);
    grid_->RowHeight(1, 555);
    EXPECT_EQ(grid_->RowHeight(1), 555);
    grid_->RowHeight(1, -1);
    EXPECT_EQ(grid_->RowHeight(1), height);
    grid_->Rows(3);
    EXPECT_EQ(grid_->RowHeight(2), height);
}

TEST_P(GridShape, HidesAColumnOfWidthZeroOrBelow)
{
    Fill(3, 4);
    grid_->ColWidth(1, 0);
    EXPECT_EQ(grid_->ColWidth(1), 0);
    for (const Long width : {-1, -250}) {
        grid_->ColWidth(2, 900);
        grid_->ColWidth(2, width);
        EXPECT_EQ(grid_->ColWidth(2), 0) << width;
    }
    EXPECT_EQ(grid_->TextMatrix(2, 1), "2/1");
    grid_->Col(1);
    EXPECT_EQ(grid_->CellWidth(), 0);
    grid_->Col(3);
    EXPECT_EQ(grid_->CellLeft(), 1500);
}

TEST_P(GridShape, KeepsAlignmentAndNumberOfAColumn)
{
    Fill(3, 4);
    EXPECT_EQ(grid_->ColAlignment(2), 9);
    EXPECT_EQ(grid_->ColData(2), 0);
    grid_->ColAlignment(2, grid_alignment::CentreMiddle);
    grid_->ColData(2, 4711);
    EXPECT_EQ(grid_->ColAlignment(2), 4);
    EXPECT_EQ(grid_->ColData(2), 4711);
    EXPECT_EQ(grid_->ColAlignment(1), 9);
    EXPECT_EQ(FailureOf([this] { grid_->ColAlignment(2, 10); }), 380);
}

TEST_P(GridShape, TellsThePlaceOfTheCurrentCell)
{
    Fill(5, 3);
    grid_->RowHeight(0, 600);
    grid_->ColWidth(1, 750);
    grid_->Row(3);
    grid_->Col(2);
    EXPECT_EQ(grid_->CellLeft(), 1500 + 750);
    EXPECT_EQ(grid_->CellTop(), 600 + 2 * 450);
    EXPECT_EQ(grid_->CellWidth(), 1500);
    EXPECT_EQ(grid_->CellHeight(), 450);
    grid_->Row(0);
    grid_->Col(0);
    EXPECT_EQ(grid_->CellLeft(), 0);
    EXPECT_EQ(grid_->CellTop(), 0);
    EXPECT_EQ(grid_->CellHeight(), 600);
}

TEST_P(GridShape, FailsForCellMembersWhereThereIsNoCell)
{
    grid_->FixedRows(0);
    grid_->Rows(0);
    EXPECT_EQ(FailureOf([this] { grid_->CellTop(); }), 30009);
    EXPECT_EQ(FailureOf([this] { grid_->CellBackColor(colours::Red); }), 30009);
    EXPECT_EQ(FailureOf([this] { grid_->TextMatrix(0, 0); }), 381);
}

TEST_P(GridShape, ReducesATopRowThatIsTooLarge)
{
    Fill(40, 3);
    grid_->TopRow(5);
    EXPECT_EQ(grid_->TopRow(), 5);
    grid_->TopRow(39);
    const Long last = grid_->TopRow();
    EXPECT_GT(last, 25);
    EXPECT_LT(last, 39);
    grid_->TopRow(1000);
    EXPECT_EQ(grid_->TopRow(), last);
    grid_->Row(last + 1);
    EXPECT_EQ(grid_->CellTop(), 2 * 450);
    grid_->Rows(3);
    EXPECT_LE(grid_->TopRow(), 2);
}

} // namespace kova::conformance
