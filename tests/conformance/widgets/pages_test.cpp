// Keys that turn the page, ask for the same day again, and open what a row stands for.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class Pages : public WidgetsTest {
protected:
    void SetUp() override
    {
        ControlDesign& grid = Has(WidgetKind::MSFlexGrid, "msfg");
        grid.width = 3000;
        grid.height = 3000;
        grid.pageBar = "kvnb";
        grid.rowButton = "kvcmdDetalhar";
        Has(WidgetKind::KVNavigationBar, "kvnb");
        Has(WidgetKind::KVCommandButton, "kvcmdDetalhar");
        Has(WidgetKind::KVTextBox, "kvtxt");
        Has(WidgetKind::KVDTPicker, "kvdtp").repeatKey = "F5";
        Open();
        grid_ = &Get<MSFlexGrid>("msfg");
        grid_->Cols(2);
        grid_->FixedCols(0);
        grid_->Rows(4);
        grid_->FixedRows(1);
        grid_->SetFocus();
        Get<KVNavigationBar>("kvnb").OnClick(
            [this](Integer& button) { events_.push_back("page " + std::to_string(button)); });
        Get<KVCommandButton>("kvcmdDetalhar").OnClick([this] {
            events_.push_back("detail of " + std::to_string(grid_->Row()));
        });
        Get<KVDTPicker>("kvdtp").OnChange(Note("change"));
        ShowPage(11, 20, 40);
    }

    void ShowPage(Double first, Double last, Double count)
    {
        auto& bar = Get<KVNavigationBar>("kvnb");
        bar.FirstRecord(first);
        bar.LastRecord(last);
        bar.RecordCount(count);
        bar.Refresh();
    }

    MSFlexGrid* grid_ = nullptr;
};
KOVA_ON_EVERY_BENCH(Pages);

TEST_P(Pages, TurnByPageDownAtTheLastRowOnly)
{
    grid_->Row(1);
    User().GridKey(*grid_, GridKey::PageDown);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(grid_->Row(), 3);
    User().GridKey(*grid_, GridKey::PageDown);
    EXPECT_EQ(TakeEvents(), Events{"page 3"});
}

TEST_P(Pages, TurnByPageUpAtTheFirstRowOnly)
{
    grid_->Row(2);
    User().GridKey(*grid_, GridKey::PageUp);
    EXPECT_EQ(TakeEvents(), Events{});
    User().GridKey(*grid_, GridKey::PageUp);
    EXPECT_EQ(TakeEvents(), Events{"page 2"});
}

TEST_P(Pages, DoNotTurnBeyondTheLastAndTheFirst)
{
    ShowPage(1, 3, 3);
    grid_->Row(3);
    User().GridKey(*grid_, GridKey::PageDown);
    grid_->Row(1);
    User().GridKey(*grid_, GridKey::PageUp);
    User().Shortcut(*form_, "Ctrl+Home");
    User().Shortcut(*form_, "Ctrl+End");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_P(Pages, GoOnAtTheRowThatFollows)
{
    const auto pageTo = [this](GridKey key, Long from) {
        grid_->Row(from);
        User().GridKey(*grid_, key);
        return grid_->Row();
    };
    EXPECT_EQ(pageTo(GridKey::PageDown, 3), 1);
    EXPECT_EQ(pageTo(GridKey::PageUp, 1), 3);
    EXPECT_EQ(Focused(), "msfg");
}

TEST_P(Pages, TellTheRowAnewAlsoWhereItHasTheNumberOfTheFormerOne)
{
    grid_->Rows(2);
    grid_->Row(1);
    grid_->OnMouseMove([this](Integer, Integer, Twips, Twips y) {
        events_.push_back(y < 0 ? "outside" : y < 240 ? "header" : "row");
    });
    User().GridKey(*grid_, GridKey::PageDown);
    EXPECT_EQ(TakeEvents(), (Events{"page 3", "outside", "row"}));
}

TEST_P(Pages, TurnToTheFirstAndTheLastFromAnywhere)
{
    User().Shortcut(*form_, "Ctrl+Home");
    EXPECT_EQ(grid_->Row(), 1);
    User().Shortcut(*form_, "Ctrl+End");
    EXPECT_EQ(grid_->Row(), 3);
    Get<KVCommandButton>("kvcmdDetalhar").SetFocus();
    User().Shortcut(*form_, "Ctrl+Home");
    EXPECT_EQ(Focused(), "kvcmdDetalhar");
    EXPECT_EQ(TakeEvents(), (Events{"page 1", "page 4", "page 1"}));
}

TEST_P(Pages, TellTheRowUnderTheRestingMouseBehindTheFirstAndTheLastPage)
{
    const auto reload = [this](Integer&) {
        grid_->Rows(1);
        grid_->Rows(4);
    };
    Get<KVNavigationBar>("kvnb").OnClick(reload);
    grid_->OnMouseMove([this](Integer, Integer, Twips, Twips y) {
        events_.push_back(y < 0 ? "outside" : "row " + std::to_string(static_cast<int>(y / 240)));
    });
    User().HoverCell(*grid_, 2, 0);
    TakeEvents();
    User().Shortcut(*form_, "Ctrl+End");
    User().Shortcut(*form_, "Ctrl+Home");
    EXPECT_EQ(TakeEvents(), (Events{"outside", "row 2", "outside", "row 2"}));
    User().GridKey(*grid_, GridKey::Down);
    TakeEvents();
    User().Shortcut(*form_, "Ctrl+End");
    EXPECT_EQ(TakeEvents(), (Events{"outside", "row 3"}));
}

TEST_P(Pages, StayWhereTheKeysMoveTheCaretOfABox)
{
    Get<KVTextBox>("kvtxt").SetFocus();
    User().Shortcut(*form_, "Ctrl+Home");
    User().Shortcut(*form_, "Ctrl+End");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_P(Pages, StayWhereTheBarIsHiddenOrDisabled)
{
    Get<KVNavigationBar>("kvnb").Visible(false);
    User().Shortcut(*form_, "Ctrl+End");
    grid_->Row(3);
    User().GridKey(*grid_, GridKey::PageDown);
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_P(Pages, SurviveAHandlerThatUnloadsTheForm)
{
    Get<KVNavigationBar>("kvnb").OnClick([this](Integer&) { form_->Unload(); });
    grid_->Row(3);
    User().GridKey(*grid_, GridKey::PageDown);
    EXPECT_FALSE(form_->IsLoaded());
}

TEST_P(Pages, LeaveTheFocusWhereTheHandlerPutIt)
{
    Get<KVNavigationBar>("kvnb").OnClick([this](Integer&) { Get<KVTextBox>("kvtxt").SetFocus(); });
    grid_->Row(3);
    User().GridKey(*grid_, GridKey::PageDown);
    EXPECT_EQ(Focused(), "kvtxt");
    EXPECT_EQ(grid_->Row(), 3);
}

TEST_P(Pages, OpenTheRowByEnter)
{
    grid_->OnClick(Note("click"));
    grid_->Row(2);
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), Events{"detail of 2"});
    EXPECT_EQ(Focused(), "msfg");
}

TEST_P(Pages, WalkToTheRowWhereItsButtonIsNotShownYet)
{
    Get<KVCommandButton>("kvcmdDetalhar").Visible(false);
    grid_->OnMouseMove(
        [this](Integer, Integer, Twips, Twips) { Get<KVCommandButton>("kvcmdDetalhar").Visible(true); });
    grid_->Row(2);
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), Events{"detail of 2"});
}

TEST_P(Pages, OpenNothingWhereTheButtonStaysHidden)
{
    Get<KVCommandButton>("kvcmdDetalhar").Visible(false);
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_P(Pages, AskForTheSameDayAgain)
{
    auto& date = Get<KVDTPicker>("kvdtp");
    date.Text("18/03/2026");
    User().Shortcut(*form_, "F5");
    EXPECT_EQ(TakeEvents(), Events{"change"});
    EXPECT_EQ(date.Text(), "18/03/2026");
    EXPECT_EQ(Focused(), "msfg");
}

TEST_P(Pages, AskForNoDayThatIsNone)
{
    auto& date = Get<KVDTPicker>("kvdtp");
    User().Shortcut(*form_, "F5");
    date.Text("31/02/2026");
    User().Shortcut(*form_, "F5");
    date.Text("18/03/2026");
    date.Enabled(false);
    User().Shortcut(*form_, "F5");
    EXPECT_EQ(TakeEvents(), Events{});
}

} // namespace kova::conformance
