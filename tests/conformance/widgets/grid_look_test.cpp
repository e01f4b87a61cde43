// How the grid and its cells look.

#include "tests/conformance/widgets/grid_suite.hpp"

namespace kova::conformance {

class GridLooks : public GridTest {
protected:
    void SetUp() override
    {
        GridTest::SetUp();
        Fill(5, 3);
    }
};
KOVA_ON_EVERY_BENCH(GridLooks);

TEST_P(GridLooks, OfACellAreThoseWrittenAtTheCursor)
{
    grid_->Row(2);
    grid_->Col(2);
    grid_->CellBackColor(Rgb(242, 242, 242));
    grid_->CellForeColor(colours::Red);
    grid_->CellFontBold(true);
    grid_->CellPicture({"atendido"});
    grid_->CellPictureAlignment(4);
    grid_->Row(3);
    EXPECT_EQ(User().GroundOf(*grid_, 2, 2), Rgb(242, 242, 242));
    EXPECT_EQ(Bench::InkOf(*grid_, 2, 2), colours::Red);
    EXPECT_TRUE(Bench::LookOf(*grid_, 2, 2).bold);
    EXPECT_EQ(Bench::LookOf(*grid_, 2, 2).pictureAlignment, 4);
    EXPECT_EQ(Bench::PictureOf(*grid_, 2, 2), "atendido");
    EXPECT_EQ(Bench::PictureOf(*grid_, 3, 2), "");
    EXPECT_EQ(User().GroundOf(*grid_, 3, 2), colours::White);
}

TEST_P(GridLooks, OfACellLoseThePictureByAnEmptyOne)
{
    grid_->CellPicture({"atendido"});
    grid_->CellPicture({});
    EXPECT_EQ(Bench::PictureOf(*grid_, 1, 1), "");
    EXPECT_EQ(FailureOf([this] { grid_->CellPictureAlignment(10); }), 380);
}

TEST_P(GridLooks, OfTheWholeGridReachTheScreen)
{
    grid_->BackColor(Rgb(10, 20, 30));
    grid_->ForeColor(Rgb(1, 2, 3));
    grid_->BackColorFixed(Rgb(40, 50, 60));
    grid_->BackColorSel(Rgb(70, 80, 90));
    grid_->ForeColorSel(Rgb(4, 5, 6));
    grid_->SelectionMode(1);
    grid_->Row(3);
    EXPECT_EQ(User().GroundOf(*grid_, 1, 1), Rgb(10, 20, 30));
    EXPECT_EQ(Bench::InkOf(*grid_, 1, 1), Rgb(1, 2, 3));
    EXPECT_EQ(User().GroundOf(*grid_, 0, 1), Rgb(40, 50, 60));
    EXPECT_EQ(User().GroundOf(*grid_, 3, 2), Rgb(70, 80, 90));
    EXPECT_EQ(Bench::InkOf(*grid_, 3, 2), Rgb(4, 5, 6));
}

TEST_P(GridLooks, OfTheFontAreReadBack)
{
    grid_->FontName("Arial");
    grid_->FontSize(11.25F);
    EXPECT_EQ(grid_->FontName(), "Arial");
    EXPECT_EQ(grid_->FontSize(), 11.25F);
}

TEST_P(GridLooks, OfLinesBarsAndBordersAreTakenWithoutAnEvent)
{
    grid_->OnSelChange(Note("sel"));
    grid_->BackColorBkg(colours::White);
    grid_->GridColor(Rgb(200, 200, 200));
    grid_->GridColorFixed(Rgb(200, 200, 200));
    grid_->GridLines(0);
    grid_->GridLinesFixed(0);
    grid_->GridLineWidth(2);
    grid_->WordWrap(true);
    grid_->FocusRect(0);
    grid_->ScrollBars(2);
    grid_->AllowUserResizing(1);
    grid_->Appearance(0);
    grid_->BorderStyle(0);
    EXPECT_EQ(User().GroundOf(*grid_, 1, 1), colours::White);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(GridLooks, AreNotShownWhileTheGridIsFilled)
{
    grid_->BackColorBkg(Rgb(9, 9, 9));
    grid_->Redraw(false);
    EXPECT_FALSE(grid_->Redraw());
    grid_->CellBackColor(colours::Red);
    grid_->TextMatrix(1, 1, "novo");
    EXPECT_EQ(grid_->TextMatrix(1, 1), "novo");
    EXPECT_EQ(User().GroundOf(*grid_, 1, 1), Rgb(9, 9, 9));
    grid_->Redraw(true);
    EXPECT_TRUE(grid_->Redraw());
    EXPECT_EQ(User().GroundOf(*grid_, 1, 1), colours::Red);
}

TEST_P(GridLooks, OfCellsGoWithTheRowsThatAreCutOff)
{
    grid_->Row(4);
    grid_->CellBackColor(colours::Red);
    grid_->Rows(4);
    grid_->Rows(5);
    EXPECT_EQ(User().GroundOf(*grid_, 4, 1), colours::White);
}

} // namespace kova::conformance
