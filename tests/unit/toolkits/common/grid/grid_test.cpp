#include "tests/unit/toolkits/common/fixture.hpp"

#include "toolkits/common/grid/grid.hpp"

namespace kova::headless {

class Grid : public ToolkitTest {
protected:
    void SetUp() override
    {
        auto& design = Has(WidgetKind::MSFlexGrid, "msfg");
        design.width = 6000;
        design.height = 3000;
        Has(WidgetKind::KVTextBox, "kvtxt");
        Open();
        grid_ = &Get<MSFlexGrid>("msfg");
    }

    /// A header row and `rows` - 1 others, no fixed column.
    void Shape(Long rows, Long cols)
    {
        grid_->Rows(rows);
        grid_->Cols(cols);
        grid_->FixedCols(0);
        grid_->FixedRows(1);
    }
    void Listen()
    {
        grid_->OnSelChange([this] {
            events_.push_back("sel " + std::to_string(grid_->Row()) + "," + std::to_string(grid_->Col()) + ":"
                              + std::to_string(grid_->RowSel()) + "," + std::to_string(grid_->ColSel()));
        });
        grid_->OnClick([this] { events_.push_back("click " + std::to_string(grid_->Row())); });
        grid_->OnMouseMove([this](Integer, Integer, Twips, Twips y) {
            events_.push_back("move " + std::to_string(static_cast<int>(y)));
        });
    }
    toolkit::GridModel& Model() { return ModelOf<toolkit::GridModel>("msfg"); }

    MSFlexGrid* grid_ = nullptr;
};

TEST_F(Grid, StartsWithTwoByTwoCellsAndOneFixedRowAndColumn)
{
    EXPECT_EQ(grid_->Rows(), 2);
    EXPECT_EQ(grid_->Cols(), 2);
    EXPECT_EQ(grid_->FixedRows(), 1);
    EXPECT_EQ(grid_->FixedCols(), 1);
    EXPECT_EQ(grid_->Row(), 1);
    EXPECT_EQ(grid_->Col(), 1);
    EXPECT_TRUE(grid_->Redraw());
}

TEST_F(Grid, MovesTheSelectionWithRowAndCol)
{
    Shape(10, 5);
    grid_->RowSel(4);
    grid_->ColSel(3);
    grid_->Row(6);
    EXPECT_EQ(grid_->RowSel(), 6);
    EXPECT_EQ(grid_->ColSel(), grid_->Col());
}

TEST_F(Grid, RaisesSelChangeOnceForEachWriteThatChangesTheRange)
{
    Shape(10, 5);
    grid_->Row(1);
    grid_->Col(0);
    Listen();
    grid_->Row(1);
    EXPECT_TRUE(TakeEvents().empty());
    grid_->Row(2);
    grid_->RowSel(4);
    grid_->ColSel(4);
    grid_->Row(2);
    EXPECT_EQ(TakeEvents(), (Events{"sel 2,0:2,0", "sel 2,0:4,0", "sel 2,0:4,4", "sel 2,0:2,0"}));
}

TEST_F(Grid, LosesTheTextOfRowsThatAreCutAndMovesTheCursorToTheLast)
{
    Shape(5, 2);
    grid_->TextMatrix(3, 1, "x");
    grid_->TextMatrix(1, 1, "kept");
    grid_->Row(4);
    Listen();
    grid_->Rows(3);
    EXPECT_EQ(grid_->Row(), 2);
    EXPECT_EQ(grid_->RowSel(), 2);
    grid_->Rows(5);
    EXPECT_EQ(grid_->Row(), 2);
    EXPECT_EQ(grid_->TextMatrix(3, 1), "");
    EXPECT_EQ(grid_->TextMatrix(1, 1), "kept");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(Grid, KeepsItsCellsWhenColumnsAreAddedAndCut)
{
    Shape(3, 3);
    grid_->TextMatrix(2, 1, "a");
    grid_->TextMatrix(2, 2, "b");
    grid_->Row(2);
    grid_->Col(2);
    grid_->CellBackColor(colours::Red);
    grid_->Cols(6);
    EXPECT_EQ(grid_->TextMatrix(2, 1) + grid_->TextMatrix(2, 2), "ab");
    EXPECT_EQ(Model().LookOfCell(2, 2).back, colours::Red);
    EXPECT_EQ(Model().LookOfCell(2, 3).back, 0);
    grid_->Cols(2);
    EXPECT_EQ(grid_->TextMatrix(2, 1), "a");
    EXPECT_EQ(grid_->Col(), 1);
}

TEST_F(Grid, NewRowsHaveTheDefaultHeightAgain)
{
    Shape(3, 2);
    grid_->RowHeight(2, 570);
    grid_->Rows(2);
    grid_->Rows(3);
    EXPECT_EQ(grid_->RowHeight(2), 240);
}

TEST_F(Grid, NumbersItsFailures)
{
    Shape(3, 4);
    EXPECT_EQ(FailureOf([this] { grid_->TextMatrix(3, 0); }), 381);
    EXPECT_EQ(FailureOf([this] { grid_->TextMatrix(0, 4, "x"); }), 381);
    EXPECT_EQ(FailureOf([this] { grid_->TextMatrix(-1, 0); }), 381);
    EXPECT_EQ(FailureOf([this] { grid_->Row(3); }), 30009);
    EXPECT_EQ(FailureOf([this] { grid_->RowSel(-1); }), 30009);
    EXPECT_EQ(FailureOf([this] { grid_->RowHeight(3); }), 30009);
    EXPECT_EQ(FailureOf([this] { grid_->Col(4); }), 30010);
    EXPECT_EQ(FailureOf([this] { grid_->ColSel(4); }), 30010);
    EXPECT_EQ(FailureOf([this] { grid_->ColWidth(4, 1); }), 30010);
    EXPECT_EQ(FailureOf([this] { grid_->ColAlignment(-1, 1); }), 30010);
    EXPECT_EQ(FailureOf([this] { grid_->ColData(4, 0); }), 30010);
    EXPECT_EQ(FailureOf([this] { grid_->Rows(-1); }), 380);
    EXPECT_EQ(FailureOf([this] { grid_->Cols(-1); }), 380);
    EXPECT_EQ(FailureOf([this] { grid_->Rows(100000); }), 380);
    EXPECT_EQ(FailureOf([this] { grid_->FixedRows(3); }), 380);
    EXPECT_EQ(grid_->Rows(), 3);
}

TEST_F(Grid, LetsRowsBeCutDownToTheFixedOnes)
{
    Shape(3, 4);
    grid_->Rows(1);
    EXPECT_EQ(grid_->FixedRows(), 1);
    EXPECT_EQ(grid_->Row(), 0);
    grid_->Rows(0);
    EXPECT_EQ(grid_->FixedRows(), 0);
    EXPECT_EQ(FailureOf([this] { grid_->CellBackColor(1); }), 30009);
}

TEST_F(Grid, HasNoCellLimitWhereTheDesignSetsNone)
{
    design_.name = "frmLarge";
    design_.controls[0].cellLimit = false;
    const FormRef large = toolkit_.CreateForm(design_);
    auto& grid = Bind<MSFlexGrid>(large, "msfg");
    grid.Cols(9);
    grid.Rows(50001);
    grid.TextMatrix(50000, 8, "fim");
    EXPECT_EQ(grid.TextMatrix(50000, 8), "fim");
}

TEST_F(Grid, ClearsAllCellsAndKeepsItsShape)
{
    Shape(3, 3);
    grid_->TextMatrix(0, 0, "title");
    grid_->Row(1);
    grid_->Col(1);
    grid_->CellFontBold(true);
    grid_->CellPicture({"agendado"});
    grid_->Clear();
    EXPECT_EQ(grid_->TextMatrix(0, 0), "");
    EXPECT_FALSE(Model().LookOfCell(1, 1).bold);
    EXPECT_EQ(Model().PictureOfCell(1, 1), "");
    EXPECT_EQ(grid_->Rows(), 3);
}

TEST_F(Grid, GivesTheLookToTheCurrentCellOnly)
{
    Shape(3, 3);
    grid_->Row(2);
    grid_->Col(1);
    grid_->CellBackColor(Rgb(242, 242, 242));
    grid_->CellForeColor(Rgb(128, 128, 128));
    grid_->CellPictureAlignment(grid_alignment::CentreMiddle);
    grid_->CellPicture({"agendado"});
    EXPECT_EQ(Model().BackColorOf(2, 1), Rgb(242, 242, 242));
    EXPECT_EQ(Model().ForeColorOf(2, 1), Rgb(128, 128, 128));
    EXPECT_EQ(Model().PictureOfCell(2, 1), "agendado");
    EXPECT_EQ(Model().LookOfCell(2, 1).pictureAlignment, 4);
    EXPECT_EQ(Model().PictureOfCell(2, 2), "");
    EXPECT_EQ(Model().BackColorOf(2, 2), Model().Look().backColor);
    grid_->CellPicture({});
    EXPECT_EQ(Model().PictureOfCell(2, 1), "");
}

TEST_F(Grid, HidesColumnsOfWidthZero)
{
    Shape(3, 3);
    grid_->ColWidth(0, 0);
    grid_->ColWidth(1, -7);
    grid_->ColWidth(2, 5040);
    EXPECT_EQ(grid_->ColWidth(1), 0);
    grid_->Col(2);
    EXPECT_EQ(grid_->CellLeft(), 0);
    EXPECT_EQ(grid_->CellWidth(), 5040);
    grid_->Col(0);
    EXPECT_EQ(grid_->CellWidth(), 0);
    grid_->ColWidth(2, -1);
    EXPECT_EQ(grid_->ColWidth(2), 0);
}

TEST_F(Grid, PlacesTheCurrentCellInsideItself)
{
    Shape(20, 3);
    grid_->RowHeight(0, 700);
    for (Long row = 1; row < 20; ++row)
        grid_->RowHeight(row, 570);
    grid_->Row(3);
    grid_->Col(1);
    EXPECT_EQ(grid_->CellTop(), 700 + 2 * 570);
    EXPECT_EQ(grid_->CellLeft(), 960);
    EXPECT_EQ(grid_->CellHeight(), 570);
    grid_->TopRow(3);
    EXPECT_EQ(grid_->CellTop(), 700);
}

TEST_F(Grid, TellsThePlaceOfTheMouseAsIfNoRowWereScrolledOut)
{
    Shape(20, 3);
    Listen();
    grid_->TopRow(3);
    TakeEvents();
    Model().UserMovesMouse(0, 0, 10, 250);
    Model().UserMovesMouse(0, 0, 10, 239);
    EXPECT_EQ(TakeEvents(), (std::vector<std::string>{"move 730", "move 239"}));
    grid_->Row(4);
    TakeEvents();
    Model().UserKey(toolkit::GridKey::Down);
    EXPECT_EQ(TakeEvents().back(), "move " + std::to_string(5 * 240 + 120));
}

TEST_F(Grid, ReducesATopRowThatIsTooLarge)
{
    Shape(20, 2);
    grid_->TopRow(500);
    EXPECT_EQ(grid_->TopRow(), 20 - (3000 - 240) / 240);
    grid_->TopRow(-3);
    EXPECT_EQ(grid_->TopRow(), 1);
}

TEST_F(Grid, FindsTheCellAtAPlace)
{
    Shape(20, 3);
    grid_->ColWidth(0, 0);
    grid_->TopRow(5);
    EXPECT_EQ(Model().HitTest(10, 10), (toolkit::GridCell{0, 1}));
    EXPECT_EQ(Model().HitTest(970, 250), (toolkit::GridCell{5, 2}));
    EXPECT_FALSE(Model().HitTest(5000, 250));
    EXPECT_FALSE(Model().HitTest(-1, 250));
}

TEST_F(Grid, HighlightsBySelectionMode)
{
    Shape(5, 3);
    grid_->Row(2);
    grid_->Col(1);
    EXPECT_FALSE(Model().IsHighlighted(2, 1));
    grid_->ColSel(2);
    EXPECT_TRUE(Model().IsHighlighted(2, 1));
    EXPECT_FALSE(Model().IsHighlighted(2, 0));
    grid_->SelectionMode(1);
    EXPECT_TRUE(Model().IsHighlighted(2, 0));
    EXPECT_FALSE(Model().IsHighlighted(3, 0));
    EXPECT_FALSE(Model().IsHighlighted(0, 0));
    grid_->SelectionMode(2);
    EXPECT_TRUE(Model().IsHighlighted(4, 1));
    EXPECT_FALSE(Model().IsHighlighted(4, 0));
    EXPECT_EQ(FailureOf([this] { grid_->SelectionMode(3); }), 380);
}

TEST_F(Grid, PaintsHighlightedCellsInTheColoursOfTheSelection)
{
    Shape(5, 2);
    grid_->BackColorSel(Rgb(217, 217, 217));
    grid_->Row(1);
    grid_->CellBackColor(colours::Red);
    grid_->SelectionMode(1);
    EXPECT_EQ(Model().BackColorOf(1, grid_->Col()), Rgb(217, 217, 217));
}

TEST_F(Grid, MakesAClickedCellCurrentBeforeClick)
{
    Shape(5, 3);
    Listen();
    EXPECT_EQ(user_.Select("frm", "msfg", 3), "");
    EXPECT_EQ(TakeEvents(), (Events{"sel 3,0:3,0", "click 3"}));
    EXPECT_TRUE(Model().HasFocus());
}

TEST_F(Grid, ReportsRowZeroForTheLengthOfAHeaderClick)
{
    Shape(5, 3);
    grid_->Row(4);
    Listen();
    user_.ClickAt("frm", "msfg", 100, 100);
    EXPECT_EQ(TakeEvents(), (Events{"click 0"}));
    EXPECT_EQ(grid_->Row(), 4);
    EXPECT_EQ(grid_->RowSel(), 4);
}

TEST_F(Grid, KeepsItsCursorWhenAHeaderClickFails)
{
    failuresAllowed_ = true;
    Shape(5, 3);
    grid_->Row(4);
    grid_->OnClick([] { throw Failure(FailureNumber::NoObject); });
    user_.ClickAt("frm", "msfg", 100, 100);
    EXPECT_EQ(grid_->Row(), 4);
    EXPECT_EQ(toolkit_.UnhandledFailures().at(0).Number(), 91);
}

TEST_F(Grid, RaisesNoClickBesideItsCells)
{
    Shape(2, 2);
    Listen();
    user_.ClickAt("frm", "msfg", 100, 2900);
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(Grid, ExtendsTheSelectionByDragging)
{
    Shape(8, 3);
    user_.Select("frm", "msfg", 2);
    Listen();
    user_.Drag("frm", "msfg", 100, 240 * 2 + 10, 100, 240 * 4 + 10);
    EXPECT_EQ(TakeEvents(), (Events{"sel 2,0:4,0"}));
    EXPECT_EQ(grid_->Row(), 2);
    EXPECT_EQ(grid_->RowSel(), 4);
}

TEST_F(Grid, ReportsTheMouseWithinARow)
{
    Shape(8, 3);
    Listen();
    EXPECT_EQ(user_.Hover("frm", "msfg", 2), "");
    EXPECT_EQ(user_.HoverAt("frm", "msfg", 5, 2999), "");
    EXPECT_EQ(user_.Hover("frm", "msfg", 8), "frm.msfg has no row 8");
    EXPECT_EQ(TakeEvents(), (Events{"move 600", "move 2999"}));
}

TEST_F(Grid, TakesArrowKeysAsMovesToTheMiddleOfTheRowReached)
{
    Shape(8, 3);
    grid_->Row(1);
    grid_->Col(0);
    Listen();
    user_.GridKey("frm", "msfg", toolkit::GridKey::Down);
    EXPECT_EQ(TakeEvents(), (Events{"sel 2,0:2,0", "move 600"}));
    user_.GridKey("frm", "msfg", toolkit::GridKey::Home);
    user_.GridKey("frm", "msfg", toolkit::GridKey::Up);
    EXPECT_EQ(grid_->Row(), 1);
    user_.GridKey("frm", "msfg", toolkit::GridKey::End);
    EXPECT_EQ(grid_->Row(), 7);
}

TEST_F(Grid, ScrollsToTheRowThatAKeyReaches)
{
    Shape(40, 2);
    grid_->Row(1);
    user_.GridKey("frm", "msfg", toolkit::GridKey::PageDown);
    EXPECT_EQ(grid_->Row(), 12);
    EXPECT_EQ(grid_->TopRow(), 2);
    user_.GridKey("frm", "msfg", toolkit::GridKey::End);
    EXPECT_EQ(grid_->TopRow(), 29);
    EXPECT_EQ(grid_->CellTop() + grid_->CellHeight(), 240 * 12);
}

TEST_F(Grid, ClicksTheCurrentRowOnEnter)
{
    Shape(8, 3);
    grid_->Row(5);
    user_.Focus("frm", "msfg");
    Listen();
    user_.PressKey("frm", toolkit::FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"click 5"}));
}

TEST_F(Grid, TakesNothingFromTheUserWhileDisabled)
{
    Shape(8, 3);
    grid_->Enabled(false);
    Listen();
    EXPECT_EQ(user_.Hover("frm", "msfg", 2), "frm.msfg is disabled");
    EXPECT_EQ(user_.Select("frm", "msfg", 2), "frm.msfg is disabled");
    EXPECT_TRUE(TakeEvents().empty());
    grid_->Row(3);
    EXPECT_EQ(TakeEvents().size(), 1U);
}

TEST_F(Grid, ResizesColumnsByTheUserOnlyWhereAllowed)
{
    Shape(2, 2);
    Model().UserResizesColumn(0, 500);
    EXPECT_EQ(grid_->ColWidth(0), 960);
    grid_->AllowUserResizing(1);
    Model().UserResizesColumn(0, 500);
    Model().UserResizesRow(0, 500);
    EXPECT_EQ(grid_->ColWidth(0), 500);
    EXPECT_EQ(grid_->RowHeight(0), 240);
}

/// Counts what the grid tells its view.
class CountingView : public toolkit::View {
public:
    explicit CountingView(int& contents) : contents_(contents) { }
    void Update(toolkit::Aspect aspect) override { contents_ += aspect == toolkit::Aspect::Content; }
    void TakeFocus() override { }

private:
    int& contents_;
};

TEST_F(Grid, TellsItsViewNothingWhileRedrawIsFalseAndAllOfItOnceAfterwards)
{
    Shape(8, 3);
    Model().TakeChange();
    int contents = 0;
    Model().AttachView(std::make_unique<CountingView>(contents));
    grid_->Redraw(false);
    for (Long row = 2; row < 5; ++row)
        grid_->TextMatrix(row, 1, "x");
    EXPECT_EQ(contents, 0);
    EXPECT_FALSE(Model().IsPainted());
    grid_->Redraw(true);
    EXPECT_EQ(contents, 1);
    const auto change = Model().TakeChange();
    EXPECT_FALSE(change.all);
    EXPECT_EQ(change.firstRow, 2);
    EXPECT_EQ(change.lastRow, 4);
    EXPECT_TRUE(Model().TakeChange().IsEmpty());
}

TEST_F(Grid, ReportsTheRowsThatTheSelectionLeftAndReached)
{
    Shape(8, 3);
    grid_->Row(2);
    Model().TakeChange();
    grid_->Row(5);
    const auto change = Model().TakeChange();
    EXPECT_EQ(change.firstRow, 2);
    EXPECT_EQ(change.lastRow, 5);
}

TEST_F(Grid, ReportsNothingWhereTheSelectionModeStays)
{
    Shape(8, 3);
    grid_->SelectionMode(1);
    EXPECT_TRUE(Model().TakeChange().all);
    grid_->SelectionMode(1);
    EXPECT_TRUE(Model().TakeChange().IsEmpty());
}

TEST_F(Grid, ShowsAllRowsInAWindowOfAnySize)
{
    Shape(8, 3);
    for (const Twips size : {3e9F, 1e30F}) {
        grid_->Height(size);
        grid_->Width(size);
        Model().UserScrolls(7, 2);
        EXPECT_EQ(Model().RowAxis().First(), 1) << size;
        EXPECT_EQ(Model().ColumnAxis().First(), 0) << size;
    }
}

TEST_F(Grid, KeepsItsOwnLook)
{
    grid_->FontName("Arial");
    grid_->FontSize(11);
    grid_->GridLines(0);
    grid_->WordWrap(true);
    grid_->ScrollBars(0);
    EXPECT_EQ(grid_->FontName(), "Arial");
    EXPECT_EQ(grid_->FontSize(), 11);
    EXPECT_EQ(Model().Look().gridLines, 0);
    EXPECT_TRUE(Model().Look().wordWrap);
    EXPECT_EQ(Model().Look().scrollBars, 0);
    EXPECT_EQ(FailureOf([this] { grid_->FontSize(0); }), 380);
}

} // namespace kova::headless
