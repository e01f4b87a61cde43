// Labels, panels, pictures and shapes, and the members that every widget has.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class Labels : public WidgetsTest { };
KOVA_ON_EVERY_BENCH(Labels);

TEST_P(Labels, OfAutomaticSizeFollowTheirCaptionInsideTheWrite)
{
    ControlDesign& design = Has(WidgetKind::Label, "lbl");
    design.caption = "Rex";
    design.autoSize = true;
    Open();
    auto& label = Get<Label>("lbl");
    const Twips narrow = label.Width();
    EXPECT_GT(narrow, 0);
    label.Caption("Rex, Bob e a gata da Dona Maria");
    const Twips wide = label.Width();
    EXPECT_GT(wide, 3 * narrow);
    label.Width(15);
    label.Caption("Rex");
    EXPECT_EQ(label.Width(), narrow);
    EXPECT_EQ(User().ShownText(label), "Rex");
}

TEST_P(Labels, OfAutomaticSizeGrowDownByALineBreak)
{
    ControlDesign& design = Has(WidgetKind::Label, "lbl");
    design.autoSize = true;
    design.caption = "um";
    Open();
    auto& label = Get<Label>("lbl");
    const Twips line = label.Height();
    label.Caption("um\r\num");
    EXPECT_GT(label.Height(), line);
    EXPECT_LE(label.Height(), 2 * line + 30);
}

TEST_P(Labels, OfAutomaticSizeThatWrapKeepTheirWidth)
{
    ControlDesign& design = Has(WidgetKind::Label, "lbl");
    design.autoSize = true;
    design.wordWrap = true;
    design.caption = "um";
    design.width = 1500;
    Open();
    auto& label = Get<Label>("lbl");
    const Twips line = label.Height();
    label.Caption("um texto que passa bem da largura do rótulo");
    EXPECT_EQ(label.Width(), 1500);
    EXPECT_GE(label.Height(), 2 * line - 30);
}

TEST_P(Labels, OfFixedSizeKeepIt)
{
    Has(WidgetKind::Label, "lbl");
    Open();
    auto& label = Get<Label>("lbl");
    label.Caption("um texto que passa bem da largura do rótulo, e ainda mais um pouco");
    EXPECT_EQ(label.Width(), 3000);
    EXPECT_EQ(label.Height(), 510);
}

TEST_P(Labels, KeepTheirColour)
{
    Has(WidgetKind::Label, "lbl");
    Has(WidgetKind::Label, "lblVermelho").foreColor = colours::Red;
    Open();
    EXPECT_EQ(Get<Label>("lbl").ForeColor(), colours::Black);
    EXPECT_EQ(Get<Label>("lblVermelho").ForeColor(), colours::Red);
    Get<Label>("lbl").ForeColor(Rgb(1, 2, 3));
    EXPECT_EQ(Get<Label>("lbl").ForeColor(), Rgb(1, 2, 3));
}

class Panels : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTextBox, "kvtxt");
        Has(WidgetKind::PictureBox, "pic");
        ControlDesign& inside = Has(WidgetKind::KVCommandButton, "kvcmd");
        inside.container = "pic";
        inside.top = 0;
        ControlDesign& label = Has(WidgetKind::Label, "lbl");
        label.container = "pic";
        label.top = 600;
        Open();
        panel_ = &Get<PictureBox>("pic");
        button_ = &Get<KVCommandButton>("kvcmd");
        button_->OnClick(Note("click"));
        button_->OnLostFocus(Note("lost"));
    }

    PictureBox* panel_ = nullptr;
    KVCommandButton* button_ = nullptr;
};
KOVA_ON_EVERY_BENCH(Panels);

TEST_P(Panels, HideWhatTheyHoldWhileItKeepsItsOwnFlag)
{
    panel_->Visible(false);
    EXPECT_TRUE(button_->Visible());
    EXPECT_FALSE(User().IsOnScreen(*button_));
    EXPECT_FALSE(User().IsOnScreen(Get<Label>("lbl")));
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), Events());
    panel_->Visible(true);
    EXPECT_TRUE(User().IsOnScreen(*button_));
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

TEST_P(Panels, KeepAWidgetHiddenThatWasHiddenInThem)
{
    panel_->Visible(false);
    button_->Visible(false);
    panel_->Visible(true);
    EXPECT_FALSE(User().IsOnScreen(*button_));
    EXPECT_TRUE(User().IsOnScreen(Get<Label>("lbl")));
}

TEST_P(Panels, DisableWhatTheyHoldWhileItKeepsItsOwnFlag)
{
    panel_->Enabled(false);
    EXPECT_TRUE(button_->Enabled());
    User().Press(*button_);
    User().PressBySpace(*button_);
    EXPECT_EQ(TakeEvents(), Events());
    panel_->Enabled(true);
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

TEST_P(Panels, TakeTheFocusFromWhatTheyHoldWhereTheyGo)
{
    button_->SetFocus();
    panel_->Visible(false);
    EXPECT_EQ(TakeEvents(), (Events{"lost"}));
    EXPECT_EQ(Focused(), "");
    panel_->Visible(true);
    button_->SetFocus();
    panel_->Enabled(false);
    EXPECT_EQ(TakeEvents(), (Events{"lost"}));
}

TEST_P(Panels, HaveAHandleOfTheirOwn)
{
    const Long handle = panel_->Handle();
    EXPECT_NE(handle, 0);
    EXPECT_NE(handle, form_->Handle());
    EXPECT_EQ(panel_->Handle(), handle);
    Kit().SetRoundRectRegion(handle, 30, 30);
    Kit().SetRoundRectRegion(0, 30, 30);
    Kit().SetRoundRectRegion(2147483647, 30, 30);
}

class PlainWidgets : public WidgetsTest { };
KOVA_ON_EVERY_BENCH(PlainWidgets);

TEST_P(PlainWidgets, AnImageGivesThePictureOfItsDesign)
{
    Has(WidgetKind::Image, "img").picture = "atendido";
    Has(WidgetKind::Image, "imgVazia");
    Open();
    EXPECT_EQ(Get<Image>("img").Picture(), Picture{"atendido"});
    EXPECT_EQ(Get<Image>("imgVazia").Picture(), Picture{});
}

TEST_P(PlainWidgets, AllHaveTheCommonMembers)
{
    for (const auto& [kind, name] : {std::pair{WidgetKind::KVComboBox, "kvcmb"},
                                     {WidgetKind::KVTextBox, "kvtxt"},
                                     {WidgetKind::KVFind, "kvf"},
                                     {WidgetKind::KVDTPicker, "kvdtp"},
                                     {WidgetKind::KVTime, "kvtim"},
                                     {WidgetKind::KVNumberBox, "kvnum"},
                                     {WidgetKind::KVCommandButton, "kvcmd"},
                                     {WidgetKind::KVTheme, "kvTheme"},
                                     {WidgetKind::KVNavigationBar, "kvnb"},
                                     {WidgetKind::MSFlexGrid, "msfg"},
                                     {WidgetKind::Label, "lbl"},
                                     {WidgetKind::PictureBox, "pic"},
                                     {WidgetKind::Image, "img"},
                                     {WidgetKind::CheckBox, "chk"},
                                     {WidgetKind::OptionButton, "opt"},
                                     {WidgetKind::Menu, "mnu"},
                                     {WidgetKind::Shape, "shp"}})
        Has(kind, name).toolTipText = "dica";
    Open();
    for (Widget* widget : form_->Controls()) {
        SCOPED_TRACE(widget->Name());
        widget->Left(-150);
        widget->Top(300);
        widget->Width(1500);
        widget->Height(450);
        EXPECT_EQ(widget->Left(), -150);
        EXPECT_EQ(widget->Top(), 300);
        EXPECT_EQ(widget->Width(), 1500);
        EXPECT_EQ(widget->Height(), 450);
        EXPECT_EQ(FailureOf([&] { widget->Width(-1); }), 380);
        EXPECT_EQ(FailureOf([&] { widget->Height(-1); }), 380);
        EXPECT_EQ(widget->Width(), 1500);
        EXPECT_TRUE(widget->Visible() && widget->Enabled() && widget->TabStop());
        widget->Visible(false);
        widget->Enabled(false);
        widget->TabStop(false);
        EXPECT_FALSE(widget->Visible() || widget->Enabled() || widget->TabStop());
        EXPECT_EQ(widget->ToolTipText(), "dica");
        widget->ToolTipText("");
        EXPECT_EQ(widget->ToolTipText(), "");
        EXPECT_EQ(widget->Tag(), "");
        widget->Tag("marca");
        EXPECT_EQ(widget->Tag(), "marca");
        widget->SetFocus();
        widget->BringToFront();
    }
    EXPECT_EQ(Focused(), "");
}

TEST_P(PlainWidgets, AreHiddenAndDisabledByDesign)
{
    ControlDesign& design = Has(WidgetKind::KVCommandButton, "kvcmd");
    design.visible = false;
    design.enabled = false;
    design.tabStop = false;
    Open();
    auto& button = Get<KVCommandButton>("kvcmd");
    EXPECT_FALSE(button.Visible() || button.Enabled() || button.TabStop());
    EXPECT_FALSE(User().IsOnScreen(button));
    button.Visible(true);
    EXPECT_TRUE(User().IsOnScreen(button));
}

TEST_P(PlainWidgets, KeepFractionsOfATwip)
{
    Has(WidgetKind::Label, "lbl");
    Open();
    auto& label = Get<Label>("lbl");
    label.Left(100.5F);
    label.Width(1234.75F);
    EXPECT_EQ(label.Left(), 100.5F);
    EXPECT_EQ(label.Width(), 1234.75F);
}

TEST_P(PlainWidgets, ComeInFrontOfTheirSiblings)
{
    Has(WidgetKind::KVCommandButton, "kvcmdUm");
    ControlDesign& second = Has(WidgetKind::KVCommandButton, "kvcmdDois");
    second.top = 0;
    Open();
    auto& first = Get<KVCommandButton>("kvcmdUm");
    first.OnClick(Note("um"));
    first.BringToFront();
    User().Press(first);
    EXPECT_EQ(TakeEvents(), (Events{"um"}));
}

} // namespace kova::conformance
