// Presses that leave a field, and the ways out of a form.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

namespace {

constexpr const char* Question = "A hora já passou. Confirma?";

} // namespace

class PressFromAField : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTime, "kvtim");
        Has(WidgetKind::KVTextBox, "kvtxt");
        Has(WidgetKind::KVCommandButton, "kvcmdSalvar").shortcut = "Ctrl+S";
        Has(WidgetKind::KVCommandButton, "kvcmdCancelar").isCancel = true;
        Has(WidgetKind::CheckBox, "chk");
        Has(WidgetKind::KVFind, "kvfnd");
        Has(WidgetKind::KVComboBox, "kvcmb");
        Has(WidgetKind::MSFlexGrid, "msfg");
        Open();
        time_ = &Get<KVTime>("kvtim");
        save_ = &Get<KVCommandButton>("kvcmdSalvar");
        cancel_ = &Get<KVCommandButton>("kvcmdCancelar");
        save_->OnClick(Note("save"));
        cancel_->OnClick(Note("cancel"));
        Get<CheckBox>("chk").OnClick(Note("check"));
        Get<KVFind>("kvfnd").OnClick(Note("find"));
        Get<KVComboBox>("kvcmb").OnDropDown(Note("list"));
        Get<MSFlexGrid>("msfg").OnClick(Note("grid"));
        time_->SetFocus();
    }

    void AskOnLeaving()
    {
        time_->OnLostFocus([this] {
            TheScript().replies.push_back(Reply::No);
            Kit().MessageBox(MessageKind::Question, Question, "Teste");
        });
    }
    void HoldOnLeaving()
    {
        time_->OnLostFocus([this] { time_->SetFocus(); });
    }

    KVTime* time_ = nullptr;
    KVCommandButton* save_ = nullptr;
    KVCommandButton* cancel_ = nullptr;
};
KOVA_ON_EVERY_BENCH(PressFromAField);

TEST_P(PressFromAField, IsLostWhereLeavingItAskedInABox)
{
    AskOnLeaving();
    User().Press(*save_);
    EXPECT_EQ(TakeEvents(), Events());
    User().Press(*save_);
    EXPECT_EQ(TakeEvents(), (Events{"save"}));
}

TEST_P(PressFromAField, IsLostWhereTheFieldTookTheFocusBack)
{
    HoldOnLeaving();
    User().Press(*save_);
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Focused(), "kvtim");
}

TEST_P(PressFromAField, IsLostByKeyToo)
{
    AskOnLeaving();
    User().Shortcut(*form_, "Ctrl+S");
    EXPECT_EQ(TakeEvents(), Events());
    time_->SetFocus();
    time_->OnLostFocus([this] { time_->SetFocus(); });
    User().Shortcut(*form_, "Ctrl+S");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(PressFromAField, IsLostOnEveryKindOfWidget)
{
    HoldOnLeaving();
    User().Press(Get<CheckBox>("chk"));
    User().PressFind(Get<KVFind>("kvfnd"));
    EXPECT_EQ(User().LookAtList(Get<KVComboBox>("kvcmb")), std::vector<std::string>());
    User().ClickAt(Get<MSFlexGrid>("msfg"), 1100, 300);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(PressFromAField, GoesOnWhereLeavingItSaidNothing)
{
    time_->OnLostFocus(Note("lost"));
    User().Press(*save_);
    EXPECT_EQ(TakeEvents(), (Events{"lost", "save"}));
}

TEST_P(PressFromAField, GoesOnWhereLeavingItPutTheFocusElsewhere)
{
    time_->OnLostFocus([this] { Get<KVTextBox>("kvtxt").SetFocus(); });
    User().Press(*save_);
    EXPECT_EQ(TakeEvents(), (Events{"save"}));
}

TEST_P(PressFromAField, GoesOnAtTheCancelButtonWhateverTheFieldDid)
{
    AskOnLeaving();
    User().Press(*cancel_);
    HoldOnLeaving();
    time_->SetFocus();
    User().Press(*cancel_);
    EXPECT_EQ(TakeEvents(), (Events{"cancel", "cancel"}));
}

TEST_P(PressFromAField, IsNoMoveOfTheFocusWhereItIsEscape)
{
    time_->OnLostFocus(Note("lost"));
    User().Key(*form_, FormKey::Escape);
    EXPECT_EQ(TakeEvents(), (Events{"cancel"}));
    EXPECT_EQ(Focused(), "kvtim");
}

class WayOut : public WidgetsTest {
protected:
    void SetUp() override
    {
        design_.guardsTyping = true;
        Has(WidgetKind::KVTextBox, "kvtxt");
        Has(WidgetKind::KVComboBox, "kvcmb");
        Has(WidgetKind::KVDTPicker, "kvdtp");
        ControlDesign& close = Has(WidgetKind::KVCommandButton, "kvcmdSalvarFechar");
        close.isCancel = true;
        close.cancelCaption = "Fechar";
        ControlDesign& cancel = Has(WidgetKind::KVCommandButton, "kvcmdCancelarAlterar");
        cancel.isCancel = true;
        cancel.cancelCaption = "Cancelar";
        Make();
        close_ = &Get<KVCommandButton>("kvcmdSalvarFechar");
        cancel_ = &Get<KVCommandButton>("kvcmdCancelarAlterar");
        close_->Caption("Salvar");
        cancel_->Caption("Cancelar");
        close_->OnClick(Note("first"));
        cancel_->OnClick(Note("second"));
    }
    void Appear() { form_->Show(ShowMode::Modeless); }
    void Escape() { User().Key(*form_, FormKey::Escape); }

    KVCommandButton* close_ = nullptr;
    KVCommandButton* cancel_ = nullptr;
};
KOVA_ON_EVERY_BENCH(WayOut);

TEST_P(WayOut, IsTheButtonWhoseCaptionSaysSo)
{
    Appear();
    Escape();
    EXPECT_EQ(TakeEvents(), (Events{"second"}));
    close_->Caption("Fechar");
    cancel_->Caption("Alterar");
    Escape();
    EXPECT_EQ(TakeEvents(), (Events{"first"}));
}

TEST_P(WayOut, IsWarnedOfOnceWhereSomethingWasTyped)
{
    Appear();
    User().Type(Get<KVTextBox>("kvtxt"), "Ana");
    Escape();
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Focused(), "kvcmdCancelarAlterar");
    Escape();
    EXPECT_EQ(TakeEvents(), (Events{"second"}));
}

TEST_P(WayOut, IsWarnedOfWhereARowOrADayWasChosen)
{
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("Um");
    Appear();
    User().Choose(combo, 0);
    Escape();
    EXPECT_EQ(Focused(), "kvcmdCancelarAlterar");
    form_->Hide();
    Appear();
    User().Pick(Get<KVDTPicker>("kvdtp"), {2026, 11, 21});
    Escape();
    EXPECT_EQ(Focused(), "kvcmdCancelarAlterar");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(WayOut, HoldsNobodyWhereTheFieldTakesTheFocusBack)
{
    Appear();
    auto& box = Get<KVTextBox>("kvtxt");
    User().Type(box, "Ana");
    box.OnLostFocus([&box] { box.SetFocus(); });
    Escape();
    EXPECT_EQ(Focused(), "kvtxt");
    EXPECT_EQ(TakeEvents(), Events());
    Escape();
    EXPECT_EQ(TakeEvents(), (Events{"second"}));
}

TEST_P(WayOut, IsWarnedOfAgainWhereTheUserWentOnTyping)
{
    Appear();
    User().Type(Get<KVTextBox>("kvtxt"), "Ana");
    Escape();
    User().Type(Get<KVTextBox>("kvtxt"), "Bia");
    Escape();
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Focused(), "kvcmdCancelarAlterar");
}

TEST_P(WayOut, IsFreeAgainInAFormThatIsShownAnew)
{
    Appear();
    User().Type(Get<KVTextBox>("kvtxt"), "Ana");
    form_->Hide();
    Appear();
    Escape();
    EXPECT_EQ(TakeEvents(), (Events{"second"}));
}

TEST_P(WayOut, IsFreeWhereOnlyCodeWrote)
{
    Get<KVTextBox>("kvtxt").Text("Ana");
    Appear();
    Escape();
    EXPECT_EQ(TakeEvents(), (Events{"second"}));
}

TEST_P(WayOut, HasTheFocusFirstWhereThereIsNothingToEnter)
{
    for (const char* name : {"kvtxt", "kvcmb", "kvdtp"})
        form_->Control(name).Enabled(false);
    close_->Caption("Confirmar");
    Appear();
    EXPECT_EQ(Focused(), "kvcmdCancelarAlterar");
}

} // namespace kova::conformance
