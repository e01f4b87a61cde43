// What the form hears where the rows change under a mouse that rests, or under who walked there by keys.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class GridPointer : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::MSFlexGrid, "msfg");
        Has(WidgetKind::KVTextBox, "kvtxt");
        ControlDesign& button = Has(WidgetKind::KVCommandButton, "kvcmdReload");
        button.shortcut = "F5";
        Open();
        grid_ = &Get<MSFlexGrid>("msfg");
        grid_->Rows(6);
        for (Long row = 0; row < 6; ++row)
            grid_->RowHeight(row, 600);
        // The mouse comes from elsewhere: a move to the place where it is already would be none.
        User().MoveAway(*grid_, Get<KVTextBox>("kvtxt"));
        grid_->OnMouseMove([this](Integer, Integer, Twips x, Twips y) {
            const bool outside = x < 0 || y < 600;
            const auto row = static_cast<Long>(y) / 600;
            events_.push_back(outside ? "outside" : "row " + std::to_string(row));
            if (!outside)
                grid_->Row(row);
        });
        Get<KVCommandButton>("kvcmdReload").OnClick([this] { Reload(); });
    }

    void Rest(Long row) { User().HoverAt(*grid_, 500, static_cast<Twips>(600 * row + 300)); }
    void Reload()
    {
        grid_->Redraw(false);
        grid_->TextMatrix(1, 1, "outro");
        grid_->Redraw(true);
    }
    void PressReload() { User().Shortcut(*form_, "F5"); }

    MSFlexGrid* grid_ = nullptr;
};
KOVA_ON_EVERY_BENCH(GridPointer);

TEST_P(GridPointer, IsToldOutsideAndThenItsRowWhereRowsChangeUnderIt)
{
    Rest(3);
    TakeEvents();
    PressReload();
    EXPECT_EQ(TakeEvents(), (Events{"outside", "row 3"}));
}

TEST_P(GridPointer, IsToldOnceOnlyForAChange)
{
    Rest(3);
    PressReload();
    TakeEvents();
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(GridPointer, IsNotToldInsideTheHandlerThatChangesTheRows)
{
    Rest(3);
    TakeEvents();
    Get<KVCommandButton>("kvcmdReload").OnClick([this] {
        Reload();
        events_.push_back("end");
    });
    PressReload();
    EXPECT_EQ(TakeEvents(), (Events{"end", "outside", "row 3"}));
}

TEST_P(GridPointer, IsToldOnlyOnceTheFormTakesInputAgain)
{
    Rest(2);
    TakeEvents();
    Get<KVCommandButton>("kvcmdReload").OnClick([this] {
        Reload();
        form_->Enabled(false);
    });
    PressReload();
    EXPECT_EQ(TakeEvents(), Events());
    form_->Enabled(true);
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(TakeEvents(), (Events{"outside", "row 2"}));
}

TEST_P(GridPointer, IsNotToldWhileABoxIsOpen)
{
    Rest(2);
    TakeEvents();
    Get<KVCommandButton>("kvcmdReload").OnClick([this] {
        Reload();
        TheScript().replies.push_back(Reply::Ok);
        Kit().MessageBox(MessageKind::Information, "Pronto", "Teste");
        events_.push_back("read");
    });
    PressReload();
    EXPECT_EQ(TakeEvents(), (Events{"read", "outside", "row 2"}));
}

TEST_P(GridPointer, IsToldOutsideWhereTheMouseLeaves)
{
    Rest(2);
    TakeEvents();
    User().MoveAway(*grid_, Get<KVTextBox>("kvtxt"));
    EXPECT_EQ(TakeEvents(), (Events{"outside"}));
    PressReload();
    EXPECT_EQ(TakeEvents(), (Events{"outside"}));
}

TEST_P(GridPointer, IsToldOutsideAloneWhereItsRowIsGone)
{
    Rest(5);
    TakeEvents();
    Get<KVCommandButton>("kvcmdReload").OnClick([this] { grid_->Rows(3); });
    PressReload();
    EXPECT_EQ(TakeEvents(), (Events{"outside"}));
}

TEST_P(GridPointer, IsToldOutsideAloneWhereTheGridIsHidden)
{
    Rest(2);
    TakeEvents();
    Get<KVCommandButton>("kvcmdReload").OnClick([this] { grid_->Visible(false); });
    PressReload();
    EXPECT_EQ(TakeEvents(), (Events{"outside"}));
}

TEST_P(GridPointer, WalksToTheRowOfTheKeysAgain)
{
    grid_->SetFocus();
    User().GridKey(*grid_, GridKey::Down);
    User().GridKey(*grid_, GridKey::Down);
    TakeEvents();
    Get<KVCommandButton>("kvcmdReload").OnClick([this] {
        Reload();
        grid_->Row(1);
    });
    PressReload();
    EXPECT_EQ(TakeEvents(), (Events{"outside", "row 3"}));
    EXPECT_EQ(grid_->Row(), 3);
}

TEST_P(GridPointer, IsOfNobodyUntilSomebodyCame)
{
    PressReload();
    EXPECT_EQ(TakeEvents(), Events());
}

} // namespace kova::conformance
