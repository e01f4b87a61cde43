#include "tests/unit/toolkits/common/fixture.hpp"

#include "toolkits/common/form.hpp"

namespace kova::headless {

class FocusOrder : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::Label, "lbl");
        Has(WidgetKind::KVDTPicker, "a");
        Has(WidgetKind::PictureBox, "pic");
        Has(WidgetKind::KVTextBox, "b").container = "pic";
        Has(WidgetKind::KVComboBox, "c");
        Open();
        auto& date = Get<KVDTPicker>("a");
        date.OnGotFocus(Note("a got"));
        date.OnLostFocus(Note("a lost"));
        Get<KVTextBox>("b").OnLostFocus(Note("b lost"));
        Get<KVComboBox>("c").OnLostFocus(Note("c lost"));
    }

    std::string Focused()
    {
        const auto* focused = dynamic_cast<toolkit::FormModel&>(*form_).Focused();
        return focused ? focused->Design().name : "";
    }
    void Tab() { user_.PressKey("frm", toolkit::FormKey::Tab); }
};

TEST_F(FocusOrder, StartsAtTheFirstTabStop) { EXPECT_EQ(Focused(), "a"); }

TEST_F(FocusOrder, FollowsTheDesign)
{
    Tab();
    EXPECT_EQ(Focused(), "b");
    Tab();
    EXPECT_EQ(Focused(), "c");
    Tab();
    EXPECT_EQ(Focused(), "a");
    user_.PressKey("frm", toolkit::FormKey::BackTab);
    EXPECT_EQ(Focused(), "c");
}

TEST_F(FocusOrder, StaysWithWhatIsHiddenOnlyWhileAFormIsLaidOut)
{
    form_->OnResize([this] {
        Get<KVDTPicker>("a").Visible(false);
        Get<KVDTPicker>("a").Visible(true);
    });
    dynamic_cast<toolkit::FormModel&>(*form_).UserResizes({6000, 6000});
    EXPECT_EQ(Focused(), "a");
    form_->OnResize([this] { Get<KVDTPicker>("a").Visible(false); });
    dynamic_cast<toolkit::FormModel&>(*form_).UserResizes({7000, 6000});
    EXPECT_EQ(Focused(), "");
}

TEST_F(FocusOrder, GoesWhereTheLayoutOfAFormPutsIt)
{
    form_->OnResize([this] {
        Get<KVDTPicker>("a").Visible(false);
        Get<KVDTPicker>("a").Visible(true);
        Get<KVComboBox>("c").SetFocus();
    });
    dynamic_cast<toolkit::FormModel&>(*form_).UserResizes({6000, 6000});
    EXPECT_EQ(Focused(), "c");
}

TEST_F(FocusOrder, SkipsWhatIsHiddenDisabledOrNoTabStop)
{
    Get<PictureBox>("pic").Visible(false);
    Tab();
    EXPECT_EQ(Focused(), "c");
    Get<PictureBox>("pic").Visible(true);
    Get<KVTextBox>("b").TabStop(false);
    Tab();
    Tab();
    EXPECT_EQ(Focused(), "c");
    Get<KVDTPicker>("a").Enabled(false);
    Tab();
    EXPECT_EQ(Focused(), "c");
}

TEST_F(FocusOrder, RaisesLostFocusBeforeGotFocusInsideSetFocus)
{
    Get<KVTextBox>("b").SetFocus();
    EXPECT_EQ(TakeEvents(), (Events{"a lost"}));
    Get<KVDTPicker>("a").SetFocus();
    EXPECT_EQ(TakeEvents(), (Events{"b lost", "a got"}));
    Get<KVDTPicker>("a").SetFocus();
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(FocusOrder, IgnoresSetFocusWhereTheWidgetCannotHaveIt)
{
    Get<KVTextBox>("b").Enabled(false);
    Get<KVTextBox>("b").SetFocus();
    form_->Control("lbl").SetFocus();
    Get<PictureBox>("pic").Visible(false);
    Get<KVTextBox>("b").Enabled(true);
    Get<KVTextBox>("b").SetFocus();
    form_->Enabled(false);
    Get<KVComboBox>("c").SetFocus();
    EXPECT_TRUE(TakeEvents().empty());
    EXPECT_EQ(Focused(), "a");
}

TEST_F(FocusOrder, TakesTheFocusFromAWidgetThatIsHiddenOrDisabled)
{
    Get<KVDTPicker>("a").Visible(false);
    EXPECT_EQ(TakeEvents(), (Events{"a lost"}));
    EXPECT_EQ(Focused(), "");
    Tab();
    EXPECT_EQ(Focused(), "b");
    Get<PictureBox>("pic").Enabled(false);
    EXPECT_EQ(TakeEvents(), (Events{"b lost"}));
    Tab();
    EXPECT_EQ(Focused(), "c");
}

TEST_F(FocusOrder, GivesWayToTheMoveOfALostFocusHandler)
{
    Get<KVDTPicker>("a").OnLostFocus([this] { Get<KVComboBox>("c").SetFocus(); });
    Get<KVTextBox>("b").SetFocus();
    EXPECT_EQ(Focused(), "c");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(FocusOrder, ReturnsToAWidgetThatTakesItBackInItsLostFocus)
{
    Get<KVDTPicker>("a").OnLostFocus([this] { Get<KVDTPicker>("a").SetFocus(); });
    user_.Focus("frm", "b");
    EXPECT_EQ(Focused(), "a");
    EXPECT_EQ(TakeEvents(), (Events{"a got"}));
}

TEST_F(FocusOrder, DoesNotReachAWidgetThatLostFocusHides)
{
    Get<KVDTPicker>("a").OnLostFocus([this] { Get<KVTextBox>("b").Visible(false); });
    user_.Focus("frm", "b");
    EXPECT_EQ(Focused(), "");
}

TEST_F(FocusOrder, SurvivesALostFocusThatShowsAModalForm)
{
    FormDesign design;
    design.name = "frmModal";
    const FormRef modal = toolkit_.CreateForm(design);
    Get<KVDTPicker>("a").OnLostFocus([&] { modal->Show(ShowMode::Modal); });
    toolkit_.Queue().QueueAction([&] {
        EXPECT_EQ(user_.Focus("frm", "c"), "frm is under a modal form");
        modal->Hide();
    });
    user_.Focus("frm", "b");
    EXPECT_EQ(Focused(), "b");
}

TEST_F(FocusOrder, LogsOnlyTheMovesOfCode)
{
    toolkit_.ClearLog();
    user_.Focus("frm", "b");
    Get<KVComboBox>("c").SetFocus();
    EXPECT_EQ(toolkit_.Log(), (Events{"focus frm.c"}));
}

class Keys : public ToolkitTest { };

TEST_F(Keys, PressTheDefaultAndTheCancelButton)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Has(WidgetKind::KVCommandButton, "kvcmdSave").isDefault = true;
    Has(WidgetKind::KVCommandButton, "kvcmdCancel").isCancel = true;
    Open();
    Get<KVCommandButton>("kvcmdSave").OnClick(Note("save"));
    Get<KVCommandButton>("kvcmdCancel").OnClick(Note("cancel"));
    Get<KVTextBox>("kvtxt").OnLostFocus(Note("lost"));
    user_.PressKey("frm", toolkit::FormKey::Enter);
    user_.PressKey("frm", toolkit::FormKey::Escape);
    EXPECT_EQ(TakeEvents(), (Events{"lost", "save", "cancel"}));
}

TEST_F(Keys, EnterGoesOnWhereThereIsNoDefaultButton)
{
    Has(WidgetKind::KVTextBox, "a");
    Has(WidgetKind::KVTextBox, "b");
    Open();
    user_.PressKey("frm", toolkit::FormKey::Enter);
    EXPECT_EQ(dynamic_cast<toolkit::FormModel&>(*form_).Focused()->Design().name, "b");
}

TEST_F(Keys, AButtonIsNotPressedWhereLostFocusDisablesIt)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    Get<KVCommandButton>("kvcmd").OnClick(Note("click"));
    Get<KVTextBox>("kvtxt").OnLostFocus([this] { Get<KVCommandButton>("kvcmd").Enabled(false); });
    user_.Click("frm", "kvcmd");
    EXPECT_TRUE(TakeEvents().empty());
}

} // namespace kova::headless
