// A form's controls, geometry and life.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class Forms : public WidgetsTest {
protected:
    void Listen(Form& form)
    {
        form.OnLoad(Note("load"));
        form.OnResize(Note("resize"));
        form.OnActivate(Note("activate"));
        form.OnUnload([this](bool&) { events_.push_back("unload"); });
    }
};
KOVA_ON_EVERY_BENCH(Forms);

TEST_P(Forms, WalkTheirControlsInTheOrderOfTheDesignAndThenThoseAdded)
{
    Has(WidgetKind::KVTheme, "kvTheme");
    Has(WidgetKind::PictureBox, "pic");
    Has(WidgetKind::KVFind, "kvf").container = "pic";
    Has(WidgetKind::OptionButton, "opt").index = 0;
    Has(WidgetKind::OptionButton, "opt").index = 1;
    Has(WidgetKind::Menu, "mnu");
    Has(WidgetKind::Image, "img");
    Open();
    form_->Add(WidgetKind::Shape, "lshpObj");
    std::string walk;
    for (Widget* widget : form_->Controls())
        walk += widget->Name() + ":" + NameOf(widget->Kind()) + "/" + std::to_string(widget->Index()) + " ";
    EXPECT_EQ(walk,
              "kvTheme:KVTheme/-1 pic:PictureBox/-1 kvf:KVFind/-1 opt:OptionButton/0 opt:OptionButton/1 "
              "mnu:Menu/-1 img:Image/-1 lshpObj:Shape/-1 ");
}

TEST_P(Forms, FindAControlByNameAndIndex)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Has(WidgetKind::OptionButton, "opt").index = 1;
    Open();
    EXPECT_EQ(form_->Control("kvtxt").Name(), "kvtxt");
    EXPECT_EQ(form_->Control("opt", 1).Index(), 1);
    EXPECT_EQ(FailureOf([this] { form_->Control("kvtxtOutro"); }), 438);
    EXPECT_EQ(FailureOf([this] { form_->Control("opt"); }), 438);
    EXPECT_EQ(FailureOf([this] { form_->Control("kvtxt", 0); }), 438);
    EXPECT_EQ(FailureOf([this] { Get<KVComboBox>("kvtxt"); }), 13);
    EXPECT_EQ(As<KVComboBox>(form_->Control("kvtxt")), nullptr);
}

TEST_P(Forms, AddAWidgetAtRunTimeHiddenAtTheirOrigin)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Open();
    Widget& shape = form_->Add(WidgetKind::Shape, "lshpObj");
    EXPECT_EQ(shape.Kind(), WidgetKind::Shape);
    EXPECT_FALSE(shape.Visible());
    EXPECT_EQ(shape.Left(), 0);
    EXPECT_EQ(shape.Top(), 0);
    shape.Width(form_->ScaleWidth());
    shape.Height(form_->ScaleHeight());
    shape.Visible(true);
    EXPECT_TRUE(User().IsOnScreen(shape));
    EXPECT_EQ(&form_->Control("lshpObj"), &shape);
    EXPECT_EQ(FailureOf([this] { form_->Add(WidgetKind::Shape, "lshpObj"); }), 380);
    EXPECT_EQ(FailureOf([this] { form_->Add(WidgetKind::Label, "kvtxt"); }), 380);
    EXPECT_EQ(form_->Controls().size(), 2U);
}

TEST_P(Forms, UseAWidgetAddedAtRunTimeLikeAnyOther)
{
    Open();
    auto& button = dynamic_cast<KVCommandButton&>(form_->Add(WidgetKind::KVCommandButton, "kvcmd"));
    button.OnClick(Note("click"));
    button.Visible(true);
    User().Press(button);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
    EXPECT_EQ(Focused(), "kvcmd");
}

TEST_P(Forms, AreNotMadeFromADesignThatNamesTwiceOrMissesAContainer)
{
    Has(WidgetKind::Label, "lbl");
    Has(WidgetKind::KVTextBox, "lbl");
    EXPECT_EQ(FailureOf([this] { Kit().CreateForm(design_); }), 380);
    design_.controls.pop_back();
    Has(WidgetKind::Label, "lblDentro").container = "picOutro";
    EXPECT_EQ(FailureOf([this] { Kit().CreateForm(design_); }), 380);
    design_.controls.back().container = "lbl";
    EXPECT_EQ(FailureOf([this] { Kit().CreateForm(design_); }), 380);
}

TEST_P(Forms, RaiseLoadResizeAndActivateAtTheFirstShow)
{
    Make();
    Listen(*form_);
    EXPECT_FALSE(form_->IsLoaded());
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(TakeEvents(), (Events{"load", "resize", "activate"}));
    EXPECT_TRUE(form_->IsLoaded() && form_->Visible());
    User().Settle();
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(Forms, RaiseLoadOnce)
{
    Make();
    Listen(*form_);
    form_->Load();
    EXPECT_EQ(TakeEvents(), (Events{"load"}));
    EXPECT_FALSE(form_->Visible());
    form_->Load();
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(TakeEvents(), (Events{"resize", "activate"}));
}

TEST_P(Forms, RaiseActivateAndNoLoadWhereShownAgain)
{
    Make();
    Listen(*form_);
    form_->Show(ShowMode::Modeless);
    form_->Hide();
    EXPECT_FALSE(form_->Visible());
    EXPECT_TRUE(form_->IsLoaded());
    TakeEvents();
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(TakeEvents(), (Events{"activate"}));
}

TEST_P(Forms, KeepTheirMembersReadableWhileHidden)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Open();
    Get<KVTextBox>("kvtxt").Text("Maria");
    form_->Hide();
    EXPECT_EQ(Get<KVTextBox>("kvtxt").Text(), "Maria");
    Get<KVTextBox>("kvtxt").Text("José");
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(User().ShownText(Get<KVTextBox>("kvtxt")), "José");
}

TEST_P(Forms, FillTheirContainerAndFollowItsSize)
{
    Make();
    Listen(*form_);
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(form_->ScaleWidth(), 12000);
    EXPECT_EQ(form_->ScaleHeight(), 11400);
    EXPECT_EQ(form_->ScaleLeft(), 0);
    EXPECT_EQ(form_->ScaleTop(), 0);
    TakeEvents();
    User().ResizeContainer(container_, 9000, 7500);
    EXPECT_EQ(TakeEvents(), (Events{"resize"}));
    EXPECT_EQ(form_->ScaleWidth(), 9000);
    EXPECT_EQ(form_->ScaleHeight(), 7500);
}

TEST_P(Forms, FindNoContainerByAnUnknownHandle)
{
    form_ = Kit().CreateForm(design_);
    EXPECT_EQ(FailureOf([this] { form_->SetParent(0); }), 5);
    EXPECT_EQ(FailureOf([this] { form_->SetParent(2147483000); }), 5);
}

TEST_P(Forms, HaveAHandle)
{
    Make();
    EXPECT_NE(form_->Handle(), 0);
    EXPECT_EQ(form_->Handle(), form_->Handle());
    EXPECT_NE(form_->Handle(), container_);
}

TEST_P(Forms, RaiseResizeInsideAWriteOfAnotherSizeOnceShown)
{
    form_ = MakeWindow("frm");
    form_->Load();
    Listen(*form_);
    form_->Width(9000);
    EXPECT_EQ(TakeEvents(), Events());
    form_->Show(ShowMode::Modeless);
    User().Settle();
    TakeEvents();
    form_->Width(10500);
    EXPECT_EQ(TakeEvents(), (Events{"resize"}));
    form_->Width(10500);
    EXPECT_EQ(TakeEvents(), Events());
    form_->Height(6000);
    EXPECT_EQ(TakeEvents(), (Events{"resize"}));
    User().Settle();
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(form_->Width(), 10500);
    EXPECT_EQ(form_->Height(), 6000);
    EXPECT_LT(form_->ScaleWidth(), 10500);
    EXPECT_LT(form_->ScaleHeight(), 6000);
    EXPECT_EQ(FailureOf([this] { form_->Width(-15); }), 380);
    EXPECT_EQ(FailureOf([this] { form_->Height(-15); }), 380);
    EXPECT_EQ(form_->Width(), 10500);
}

TEST_P(Forms, RaiseResizeWhereTheUserResizesTheirWindow)
{
    design_.resizable = true;
    form_ = MakeWindow("frm");
    form_->Show(ShowMode::Modeless);
    User().Settle();
    Listen(*form_);
    User().ResizeWindow(*form_, 7500, 6000);
    EXPECT_EQ(TakeEvents(), (Events{"resize"}));
    EXPECT_EQ(form_->ScaleWidth(), 7500);
    EXPECT_EQ(form_->ScaleHeight(), 6000);
}

TEST_P(Forms, WithoutABorderAreAsLargeInsideAsOutside)
{
    design_.bordered = false;
    form_ = MakeWindow("frm");
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(form_->ScaleWidth(), form_->Width());
    EXPECT_EQ(form_->ScaleHeight(), form_->Height());
}

TEST_P(Forms, KeepCaptionAndPlace)
{
    form_ = MakeWindow("frm");
    EXPECT_EQ(form_->Name(), "frm");
    EXPECT_EQ(form_->Caption(), "Teste");
    form_->Caption("Outro");
    EXPECT_EQ(form_->Caption(), "Outro");
    form_->Show(ShowMode::Modeless);
    form_->Left(300);
    form_->Top(450);
    EXPECT_EQ(form_->Left(), 300);
    EXPECT_EQ(form_->Top(), 450);
    form_->Refresh();
}

TEST_P(Forms, TakeNoInputWhileDisabledButCode)
{
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Has(WidgetKind::KVTextBox, "kvtxt");
    Has(WidgetKind::KVComboBox, "kvcmb");
    Open();
    Get<KVCommandButton>("kvcmd").OnClick(Note("click"));
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("um");
    combo.OnClick(Note("combo"));
    form_->Enabled(false);
    EXPECT_FALSE(form_->Enabled());
    EXPECT_TRUE(Get<KVTextBox>("kvtxt").Enabled());
    User().Press(Get<KVCommandButton>("kvcmd"));
    User().Type(Get<KVTextBox>("kvtxt"), "x");
    User().Choose(combo, 0);
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Get<KVTextBox>("kvtxt").Text(), "");
    combo.ListIndex(0);
    EXPECT_EQ(TakeEvents(), (Events{"combo"}));
    form_->Enabled(true);
    User().Press(Get<KVCommandButton>("kvcmd"));
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

TEST_P(Forms, AreHiddenAgainWhereAHandlerOfTheFirstShowFails)
{
    Make();
    form_->OnActivate([] { throw Failure(FailureNumber::NoObject); });
    EXPECT_EQ(FailureOf([this] { form_->Show(ShowMode::Modeless); }), 91);
    EXPECT_FALSE(form_->Visible());
}

} // namespace kova::conformance
