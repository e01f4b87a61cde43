#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class FocusOrder : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::Label, "lbl");
        Has(WidgetKind::KVDTPicker, "a");
        Has(WidgetKind::PictureBox, "pic");
        ControlDesign& inside = Has(WidgetKind::KVTextBox, "b");
        inside.container = "pic";
        inside.top = 0;
        Has(WidgetKind::KVComboBox, "c");
        Open();
        a_ = &Get<KVDTPicker>("a");
        b_ = &Get<KVTextBox>("b");
        c_ = &Get<KVComboBox>("c");
        a_->OnGotFocus(Note("a got"));
        a_->OnLostFocus(Note("a lost"));
        b_->OnLostFocus(Note("b lost"));
        c_->OnLostFocus(Note("c lost"));
    }

    void Tab() { User().Key(*form_, FormKey::Tab); }
    void TabBack() { User().Key(*form_, FormKey::BackTab); }

    KVDTPicker* a_ = nullptr;
    KVTextBox* b_ = nullptr;
    KVComboBox* c_ = nullptr;
};
KOVA_ON_EVERY_BENCH(FocusOrder);

TEST_P(FocusOrder, StartsAtTheFirstTabStop) { EXPECT_EQ(Focused(), "a"); }

TEST_P(FocusOrder, FollowsTheDesignRoundAndBack)
{
    std::string walk;
    for (int step = 0; step < 3; ++step) {
        Tab();
        walk += Focused();
    }
    for (int step = 0; step < 3; ++step) {
        TabBack();
        walk += Focused();
    }
    EXPECT_EQ(walk, "bcacba");
}

TEST_P(FocusOrder, SkipsWhatIsHiddenDisabledOrNoTabStop)
{
    Get<PictureBox>("pic").Visible(false);
    Tab();
    EXPECT_EQ(Focused(), "c");
    Get<PictureBox>("pic").Visible(true);
    b_->TabStop(false);
    TabBack();
    EXPECT_EQ(Focused(), "a");
    Tab();
    EXPECT_EQ(Focused(), "c");
    a_->Enabled(false);
    Tab();
    EXPECT_EQ(Focused(), "c");
}

TEST_P(FocusOrder, ReachesAWidgetThatIsNoTabStopByMouseAndByCode)
{
    b_->TabStop(false);
    User().Focus(*b_);
    EXPECT_EQ(Focused(), "b");
    a_->SetFocus();
    b_->SetFocus();
    EXPECT_EQ(Focused(), "b");
}

TEST_P(FocusOrder, RaisesLostFocusBeforeGotFocusInsideSetFocus)
{
    b_->SetFocus();
    EXPECT_EQ(TakeEvents(), (Events{"a lost"}));
    a_->SetFocus();
    EXPECT_EQ(TakeEvents(), (Events{"b lost", "a got"}));
    a_->SetFocus();
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Focused(), "a");
}

TEST_P(FocusOrder, RaisesTheSameWhereTheUserMovesIt)
{
    User().Focus(*b_);
    EXPECT_EQ(TakeEvents(), (Events{"a lost"}));
    TabBack();
    EXPECT_EQ(TakeEvents(), (Events{"b lost", "a got"}));
    Tab();
    EXPECT_EQ(TakeEvents(), (Events{"a lost"}));
    User().Focus(*a_);
    EXPECT_EQ(TakeEvents(), (Events{"b lost", "a got"}));
}

TEST_P(FocusOrder, StaysWhereSetFocusCannotMoveIt)
{
    b_->Enabled(false);
    b_->SetFocus();
    b_->Enabled(true);
    b_->Visible(false);
    b_->SetFocus();
    b_->Visible(true);
    Get<PictureBox>("pic").Visible(false);
    b_->SetFocus();
    Get<PictureBox>("pic").Visible(true);
    Get<PictureBox>("pic").Enabled(false);
    b_->SetFocus();
    form_->Control("lbl").SetFocus();
    form_->Control("pic").SetFocus();
    form_->Enabled(false);
    c_->SetFocus();
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Focused(), "a");
}

TEST_P(FocusOrder, StaysWhereTheUserClicksADisabledForm)
{
    form_->Enabled(false);
    User().Focus(*b_);
    Tab();
    EXPECT_EQ(Focused(), "a");
    form_->Enabled(true);
    EXPECT_EQ(Focused(), "a");
    User().TypeOn(*a_, "2");
    EXPECT_EQ(a_->Text(), "2_/__/____");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FocusOrder, StaysWhereTheUserClicksADisabledWidget)
{
    b_->Enabled(false);
    User().Focus(*b_);
    EXPECT_EQ(Focused(), "a");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FocusOrder, IsLostByAWidgetThatIsHiddenOrDisabled)
{
    a_->Visible(false);
    EXPECT_EQ(TakeEvents(), (Events{"a lost"}));
    EXPECT_EQ(Focused(), "");
    Tab();
    EXPECT_EQ(Focused(), "b");
    b_->Enabled(false);
    EXPECT_EQ(TakeEvents(), (Events{"b lost"}));
    EXPECT_EQ(Focused(), "");
    Tab();
    EXPECT_EQ(Focused(), "c");
}

TEST_P(FocusOrder, GivesWayToTheMoveOfALostFocusHandler)
{
    a_->OnLostFocus([this] { c_->SetFocus(); });
    b_->SetFocus();
    EXPECT_EQ(Focused(), "c");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FocusOrder, ReturnsToAWidgetThatTakesItBackInItsLostFocus)
{
    a_->OnLostFocus([this] { a_->SetFocus(); });
    User().Focus(*b_);
    EXPECT_EQ(Focused(), "a");
    EXPECT_EQ(TakeEvents(), (Events{"a got"}));
    Tab();
    EXPECT_EQ(Focused(), "a");
}

TEST_P(FocusOrder, DoesNotReachAWidgetThatLostFocusHides)
{
    a_->OnLostFocus([this] { b_->Visible(false); });
    User().Focus(*b_);
    EXPECT_EQ(Focused(), "");
}

TEST_P(FocusOrder, DoesNotReachAWidgetThatLostFocusDisables)
{
    a_->OnLostFocus([this] { b_->Enabled(false); });
    User().Focus(*b_);
    EXPECT_EQ(Focused(), "");
    b_->Enabled(true);
    User().TypeOn(*b_, "x");
    Tab();
    EXPECT_EQ(Focused(), "b");
}

TEST_P(FocusOrder, SurvivesALostFocusThatUnloadsTheForm)
{
    a_->OnLostFocus([this] { form_->Unload(); });
    b_->OnLostFocus(Note("b lost"));
    User().Focus(*b_);
    EXPECT_FALSE(form_->IsLoaded());
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FocusOrder, SelectsBackToTheStartByTheKeysSent)
{
    b_->SetFocus();
    b_->Text("Maria");
    Kit().SendKeys("+({HOME})");
    EXPECT_EQ(User().SelectedText(*b_), "Maria");
    User().TypeOn(*b_, "J");
    EXPECT_EQ(b_->Text(), "J");
    EXPECT_EQ(FailureOf([this] { Kit().SendKeys("{TAB}"); }), 5);
}

class EnteredBox : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTextBox, "a").text = "Maria";
        Has(WidgetKind::KVFind, "b").text = "Rex";
        Has(WidgetKind::KVTextBox, "c").shortcut = "F6";
        Has(WidgetKind::KVCommandButton, "d").shortcut = "F7";
        Open();
        a_ = &Get<KVTextBox>("a");
        b_ = &Get<KVFind>("b");
        Get<KVTextBox>("c").Text("José");
    }

    KVTextBox* a_ = nullptr;
    KVFind* b_ = nullptr;
};
KOVA_ON_EVERY_BENCH(EnteredBox);

TEST_P(EnteredBox, IsSelectedWholeWhereItComesByTabOrIsTheFirstOfItsForm)
{
    EXPECT_EQ(User().SelectedText(*a_), "Maria");
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(User().SelectedText(*b_), "Rex");
    User().TypeOn(*b_, "Bob");
    EXPECT_EQ(b_->Text(), "Bob");
    User().Key(*form_, FormKey::BackTab);
    EXPECT_EQ(User().SelectedText(*a_), "Maria");
}

TEST_P(EnteredBox, IsSelectedWholeByCodeByItsKeyAndByEnter)
{
    b_->SetFocus();
    EXPECT_EQ(User().SelectedText(*b_), "Rex");
    User().Shortcut(*form_, "F6");
    EXPECT_EQ(User().SelectedText(Get<KVTextBox>("c")), "José");
    a_->SetFocus();
    b_->Status(find_status::Found);
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(Focused(), "b");
    EXPECT_EQ(User().SelectedText(*b_), "Rex");
}

TEST_P(EnteredBox, IsNotSelectedByAPressOfTheMouse)
{
    User().Focus(*b_);
    EXPECT_EQ(Focused(), "b");
    EXPECT_EQ(User().SelectedText(*b_), "");
}

TEST_P(EnteredBox, KeepsItsCaretWhereAButtonWasPressedByKey)
{
    User().Focus(*b_);
    User().PasteAtEnd(*b_, "");
    User().Shortcut(*form_, "F7");
    EXPECT_EQ(Focused(), "b");
    User().TypeOn(*b_, "y");
    EXPECT_EQ(b_->Text(), "Rexy");
}

TEST_P(EnteredBox, LeavesWhatItsHandlersSelectOrWrite)
{
    a_->OnLostFocus([this] { b_->Text("Bob da Silva"); });
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(User().SelectedText(*b_), "Bob da Silva");
    b_->OnLostFocus([this] {
        b_->SetFocus();
        b_->Text("Rex");
    });
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(Focused(), "b");
    EXPECT_EQ(User().SelectedText(*b_), "");
}

class DefaultButton : public WidgetsTest { };
KOVA_ON_EVERY_BENCH(DefaultButton);

TEST_P(DefaultButton, IsPressedByEnterInAnotherField)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Has(WidgetKind::KVCommandButton, "kvcmd").isDefault = true;
    Open();
    Get<KVTextBox>("kvtxt").OnLostFocus(Note("lost"));
    Get<KVCommandButton>("kvcmd").OnClick(Note("click"));
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"lost", "click"}));
}

TEST_P(DefaultButton, LeavesEnterToTheNextFieldWhereThereIsNone)
{
    Has(WidgetKind::KVTextBox, "a");
    Has(WidgetKind::KVTextBox, "b");
    Open();
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(Focused(), "b");
}

} // namespace kova::conformance
