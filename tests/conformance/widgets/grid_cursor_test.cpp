// The grid's cursor and selection, by code and by the user.

#include "tests/conformance/widgets/grid_suite.hpp"

namespace kova::conformance {

class GridCursor : public GridTest {
protected:
    void SetUp() override
    {
        GridTest::SetUp();
        Fill(6, 4);
        grid_->OnSelChange([this] { events_.push_back("sel " + Cursor()); });
        grid_->OnClick([this] { events_.push_back("click " + Cursor()); });
    }

    void HearMoves()
    {
        grid_->OnMouseMove([this](Integer button, Integer shift, Twips x, Twips y) {
            events_.push_back("move " + std::to_string(button) + " " + std::to_string(shift) + " "
                              + std::to_string(static_cast<int>(x)) + ","
                              + std::to_string(static_cast<int>(y)));
        });
    }
};
KOVA_ON_EVERY_BENCH(GridCursor);

TEST_P(GridCursor, TakesRowSelAndColSelAlongWhereRowOrColIsWritten)
{
    grid_->RowSel(4);
    grid_->ColSel(3);
    EXPECT_EQ(Cursor(), "1,1 4,3");
    grid_->Row(2);
    EXPECT_EQ(Cursor(), "2,1 2,1");
    grid_->ColSel(3);
    grid_->Col(0);
    EXPECT_EQ(Cursor(), "2,0 2,0");
}

TEST_P(GridCursor, RaisesSelChangeInsideEachWriteThatChangesTheRange)
{
    grid_->Row(2);
    grid_->Row(2);
    grid_->ColSel(3);
    grid_->ColSel(3);
    grid_->RowSel(4);
    grid_->Col(1);
    grid_->Col(1);
    EXPECT_EQ(TakeEvents(), (Events{"sel 2,1 2,1", "sel 2,1 2,3", "sel 2,1 4,3", "sel 2,1 2,1"}));
}

TEST_P(GridCursor, MayStandOnAFixedCellByCode)
{
    grid_->Row(0);
    grid_->Col(0);
    EXPECT_EQ(Cursor(), "0,0 0,0");
    EXPECT_EQ(TakeEvents(), (Events{"sel 0,1 0,1", "sel 0,0 0,0"}));
}

TEST_P(GridCursor, RaisesSelChangeAlsoWhileNothingIsPainted)
{
    grid_->Redraw(false);
    grid_->Row(3);
    EXPECT_EQ(TakeEvents(), (Events{"sel 3,1 3,1"}));
}

TEST_P(GridCursor, HighlightsByTheSelectionMode)
{
    const auto marked = [this](Long row, Long col) { return Bench::IsHighlighted(*grid_, row, col); };
    grid_->Row(2);
    grid_->Col(2);
    EXPECT_FALSE(marked(2, 2));
    grid_->ColSel(3);
    EXPECT_TRUE(marked(2, 2) && marked(2, 3));
    EXPECT_FALSE(marked(2, 1) || marked(3, 2));
    grid_->SelectionMode(1);
    EXPECT_EQ(grid_->SelectionMode(), 1);
    EXPECT_TRUE(marked(2, 1) && marked(2, 3));
    EXPECT_FALSE(marked(1, 2) || marked(2, 0));
    grid_->SelectionMode(2);
    EXPECT_TRUE(marked(5, 2) && marked(1, 3));
    EXPECT_FALSE(marked(5, 1) || marked(0, 2));
    EXPECT_EQ(FailureOf([this] { grid_->SelectionMode(3); }), 380);
}

TEST_P(GridCursor, HighlightsByTheSelectionModeOfTheDesignUntilCodeWritesAnother)
{
    auto& grid = Get<MSFlexGrid>("msfgSemLimite");
    const auto marked = [&grid](Long row, Long col) { return Bench::IsHighlighted(grid, row, col); };
    grid.Rows(3);
    grid.Cols(4);
    grid.SetFocus();
    User().GridKey(grid, GridKey::Down);
    EXPECT_EQ(grid.SelectionMode(), 1);
    EXPECT_TRUE(marked(2, 1) && marked(2, 3)) << "the row that a key reaches, as a whole";
    EXPECT_FALSE(marked(1, 1));
    grid.SelectionMode(0);
    EXPECT_FALSE(marked(2, 1));
}

TEST_P(GridCursor, StandsOnTheCellThatTheUserClicks)
{
    User().ClickCell(*grid_, 3, 2);
    EXPECT_EQ(TakeEvents(), (Events{"sel 3,2 3,2", "click 3,2 3,2"}));
    User().ClickCell(*grid_, 3, 2);
    EXPECT_EQ(TakeEvents(), (Events{"click 3,2 3,2"}));
    EXPECT_EQ(Focused(), "msfg");
}

TEST_P(GridCursor, StaysWhereTheUserClicksTheHeaderAndReadsRowZeroMeanwhile)
{
    grid_->Row(3);
    grid_->Col(2);
    TakeEvents();
    User().ClickCell(*grid_, 0, 1);
    EXPECT_EQ(TakeEvents(), (Events{"click 0,2 3,2"}));
    EXPECT_EQ(Cursor(), "3,2 3,2");
}

TEST_P(GridCursor, GoesToTheFirstFreeCellWhereTheUserClicksAFixedColumn)
{
    User().ClickCell(*grid_, 4, 0);
    EXPECT_EQ(TakeEvents(), (Events{"sel 4,1 4,1", "click 4,1 4,1"}));
}

TEST_P(GridCursor, IgnoresAClickBesideTheCells)
{
    User().ClickAt(*grid_, 7500, 600);
    User().ClickAt(*grid_, 600, 4200);
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Focused(), "msfg");
}

TEST_P(GridCursor, IsClickedThroughHiddenColumns)
{
    grid_->ColWidth(1, 0);
    User().ClickAt(*grid_, 1650, 600);
    EXPECT_EQ(TakeEvents().back(), "click 1,2 1,2");
}

TEST_P(GridCursor, IsClickedWhereTheGridIsScrolled)
{
    Fill(40, 4);
    grid_->TopRow(11);
    TakeEvents();
    User().ClickAt(*grid_, 1650, 600);
    EXPECT_EQ(TakeEvents().back(), "click 11,1 11,1");
}

TEST_P(GridCursor, StretchesTheSelectionWhereTheUserDrags)
{
    User().Drag(*grid_, 2250, 675, 5250, 1575);
    EXPECT_EQ(TakeEvents(), (Events{"sel 1,1 3,3"}));
}

TEST_P(GridCursor, IsNotClickedWhereTheButtonIsReleasedOverAnotherCell)
{
    User().Drag(*grid_, 2250, 675, 5250, 675);
    User().Drag(*grid_, 2250, 675, 2250, 8000);
    for (const std::string& event : TakeEvents())
        EXPECT_FALSE(event.starts_with("click")) << event;
}

TEST_P(GridCursor, IsClickedWhereTheButtonIsReleasedOverTheSameCell)
{
    User().Drag(*grid_, 2250, 675, 2300, 700);
    EXPECT_EQ(TakeEvents(), (Events{"click 1,1 1,1"}));
}

TEST_P(GridCursor, TakesNothingFromTheUserWhileTheGridIsDisabled)
{
    HearMoves();
    grid_->Enabled(false);
    User().ClickCell(*grid_, 3, 2);
    User().HoverCell(*grid_, 2, 1);
    User().GridKey(*grid_, GridKey::Down);
    EXPECT_EQ(TakeEvents(), Events());
    grid_->Row(4);
    EXPECT_EQ(TakeEvents(), (Events{"sel 4,1 4,1"}));
}

// A mouse points at the middles of pixels.
TEST_P(GridCursor, StaysWhereTheUserHovers)
{
    HearMoves();
    User().HoverAt(*grid_, 1807.5, 1207.5);
    User().HoverAt(*grid_, 8857.5, 4357.5);
    EXPECT_EQ(TakeEvents(), (Events{"move 0 0 1807,1207", "move 0 0 8857,4357"}));
    EXPECT_EQ(Cursor(), "1,1 1,1");
}

TEST_P(GridCursor, GoesByArrowKeysWithAMoveToTheMiddleOfTheRow)
{
    HearMoves();
    User().GridKey(*grid_, GridKey::Down);
    EXPECT_EQ(TakeEvents(), (Events{"sel 2,1 2,1", "move 0 0 750,1125"}));
    User().GridKey(*grid_, GridKey::Up);
    EXPECT_EQ(TakeEvents(), (Events{"sel 1,1 1,1", "move 0 0 750,675"}));
    User().GridKey(*grid_, GridKey::End);
    EXPECT_EQ(TakeEvents(), (Events{"sel 5,1 5,1", "move 0 0 750,2475"}));
    User().GridKey(*grid_, GridKey::Home);
    EXPECT_EQ(TakeEvents(), (Events{"sel 1,1 1,1", "move 0 0 750,675"}));
}

TEST_P(GridCursor, StaysInsideTheFreeRowsByArrowKeys)
{
    User().GridKey(*grid_, GridKey::Up);
    EXPECT_EQ(Cursor(), "1,1 1,1");
    User().GridKey(*grid_, GridKey::End);
    User().GridKey(*grid_, GridKey::Down);
    EXPECT_EQ(Cursor(), "5,1 5,1");
    EXPECT_EQ(TakeEvents(), (Events{"sel 5,1 5,1"}));
}

TEST_P(GridCursor, ScrollsAlongByKeys)
{
    Fill(40, 4);
    User().GridKey(*grid_, GridKey::PageDown);
    EXPECT_GT(grid_->Row(), 5);
    User().GridKey(*grid_, GridKey::End);
    EXPECT_EQ(grid_->Row(), 39);
    EXPECT_GT(grid_->TopRow(), 25);
    EXPECT_LE(grid_->CellTop() + grid_->CellHeight(), 4500);
    User().GridKey(*grid_, GridKey::PageUp);
    EXPECT_LT(grid_->Row(), 39);
    User().GridKey(*grid_, GridKey::Home);
    EXPECT_EQ(grid_->TopRow(), 1);
}

TEST_P(GridCursor, IsClickedByEnter)
{
    grid_->Row(4);
    grid_->SetFocus();
    TakeEvents();
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"click 4,1 4,1"}));
}

TEST_P(GridCursor, RaisesLostFocusWhereTheUserGoesOn)
{
    grid_->OnLostFocus(Note("lost"));
    User().ClickCell(*grid_, 2, 1);
    TakeEvents();
    User().Focus(Get<KVTextBox>("kvtxt"));
    EXPECT_EQ(TakeEvents(), (Events{"lost"}));
}

TEST_P(GridCursor, MayBeEmptiedInsideItsOwnClick)
{
    grid_->OnClick([this] {
        grid_->Rows(1);
        grid_->Clear();
    });
    User().ClickCell(*grid_, 3, 2);
    EXPECT_EQ(grid_->Rows(), 1);
    EXPECT_EQ(grid_->Row(), 0);
    User().ClickCell(*grid_, 0, 2);
    EXPECT_EQ(grid_->Row(), 0);
    User().GridKey(*grid_, GridKey::Down);
    EXPECT_EQ(grid_->Row(), 0);
}

TEST_P(GridCursor, MayBeEmptiedInsideTheClickOfItsHeader)
{
    grid_->Row(5);
    grid_->OnClick([this] { grid_->Rows(1); });
    User().ClickCell(*grid_, 0, 2);
    EXPECT_EQ(Cursor(), "0,1 0,1");
}

} // namespace kova::conformance
