// Buttons, check boxes and options.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class CommandButton : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTextBox, "kvtxt");
        Has(WidgetKind::KVCommandButton, "kvcmd").caption = "Salvar";
        Has(WidgetKind::KVCommandButton, "kvcmdCancelar").isCancel = true;
        Open();
        button_ = &Get<KVCommandButton>("kvcmd");
        button_->OnClick(Note("click"));
        button_->OnLostFocus(Note("lost"));
        Get<KVCommandButton>("kvcmdCancelar").OnClick(Note("cancel"));
    }

    KVCommandButton* button_ = nullptr;
};
KOVA_ON_EVERY_BENCH(CommandButton);

TEST_P(CommandButton, RaisesClickByMouseAndByKeys)
{
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
    User().PressBySpace(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

TEST_P(CommandButton, TakesTheFocusBeforeItsClick)
{
    Get<KVTextBox>("kvtxt").SetFocus();
    Get<KVTextBox>("kvtxt").OnLostFocus(Note("text lost"));
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"text lost", "click"}));
    EXPECT_EQ(Focused(), "kvcmd");
    User().Focus(Get<KVTextBox>("kvtxt"));
    EXPECT_EQ(TakeEvents(), (Events{"lost"}));
}

TEST_P(CommandButton, IsNotPressedWhereTheLostFocusBeforeItDisablesIt)
{
    Get<KVTextBox>("kvtxt").SetFocus();
    Get<KVTextBox>("kvtxt").OnLostFocus([this] { button_->Enabled(false); });
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(CommandButton, ShowsItsCaptionAndKeepsTheBlankedToolTipParts)
{
    EXPECT_EQ(button_->Caption(), "Salvar");
    button_->Caption("Confirmar");
    button_->ToolTipTitle("");
    button_->ToolTipText("");
    button_->ToolTipBody("");
    button_->ToolTipType(0);
    button_->ToolTipText("Confirma o agendamento");
    EXPECT_EQ(User().ShownText(*button_), "Confirmar");
    EXPECT_EQ(button_->ToolTipText(), "Confirma o agendamento");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(CommandButton, TakesNoPressWhileItIsDisabledOrHidden)
{
    button_->Enabled(false);
    User().Press(*button_);
    User().PressBySpace(*button_);
    button_->Enabled(true);
    button_->Visible(false);
    User().Press(*button_);
    User().PressBySpace(*button_);
    EXPECT_EQ(TakeEvents(), Events());
    button_->Visible(true);
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

TEST_P(CommandButton, OfTheDesignsCancelRoleIsPressedByEscape)
{
    Get<KVTextBox>("kvtxt").SetFocus();
    User().Key(*form_, FormKey::Escape);
    EXPECT_EQ(TakeEvents(), (Events{"cancel"}));
    Get<KVCommandButton>("kvcmdCancelar").Enabled(false);
    User().Key(*form_, FormKey::Escape);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(CommandButton, LetsAFailureOfItsClickReachTheToolkitAndGoesOn)
{
    button_->OnClick([] { throw Failure(FailureNumber::TypeMismatch); });
    User().Press(*button_);
    EXPECT_EQ(TakeUnhandled(), (std::vector<std::int32_t>{13}));
    button_->OnClick(Note("click"));
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

TEST_P(CommandButton, MayReplaceItsHandlerInsideItsClick)
{
    button_->OnClick([this] {
        button_->OnClick(Note("second"));
        events_.push_back("first");
    });
    User().Press(*button_);
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), (Events{"first", "second"}));
    button_->OnClick(nullptr);
    User().Press(*button_);
    EXPECT_EQ(TakeEvents(), Events());
}

class CheckBoxes : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::CheckBox, "chk").caption = "Painel";
        Has(WidgetKind::CheckBox, "chkMarcada").value = 1;
        Open();
        box_ = &Get<CheckBox>("chk");
        box_->OnClick([this] { events_.push_back("click " + std::to_string(box_->Value())); });
    }

    CheckBox* box_ = nullptr;
};
KOVA_ON_EVERY_BENCH(CheckBoxes);

TEST_P(CheckBoxes, HaveTheValueOfTheirDesign)
{
    EXPECT_EQ(box_->Value(), 0);
    EXPECT_EQ(box_->Caption(), "Painel");
    EXPECT_EQ(Get<CheckBox>("chkMarcada").Value(), 1);
}

TEST_P(CheckBoxes, RaiseClickForAWriteThatChangesTheValueOnly)
{
    box_->Value(1);
    box_->Value(1);
    box_->Value(2);
    box_->Value(0);
    box_->Value(0);
    EXPECT_EQ(TakeEvents(), (Events{"click 1", "click 2", "click 0"}));
}

TEST_P(CheckBoxes, FailForAnyOtherValue)
{
    box_->Value(1);
    TakeEvents();
    EXPECT_EQ(FailureOf([this] { box_->Value(3); }), 380);
    EXPECT_EQ(FailureOf([this] { box_->Value(-1); }), 380);
    EXPECT_EQ(box_->Value(), 1);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(CheckBoxes, AreToggledByMouseAndSpaceBar)
{
    User().Press(*box_);
    User().PressBySpace(*box_);
    User().Press(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1", "click 0", "click 1"}));
}

TEST_P(CheckBoxes, AreClearedByThePressAfterGrey)
{
    box_->Value(2);
    TakeEvents();
    User().Press(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 0"}));
}

TEST_P(CheckBoxes, TakeNoPressWhileDisabledButWrites)
{
    box_->Enabled(false);
    User().Press(*box_);
    EXPECT_EQ(TakeEvents(), Events());
    box_->Value(1);
    EXPECT_EQ(TakeEvents(), (Events{"click 1"}));
}

class OptionButtons : public WidgetsTest {
protected:
    void SetUp() override
    {
        for (const int index : {0, 1, 2})
            Has(WidgetKind::OptionButton, "opt").index = index;
        ControlDesign& other = Has(WidgetKind::OptionButton, "optOutra");
        other.index = 0;
        other.value = 1;
        Open();
        for (const int index : {0, 1, 2})
            Option(index).OnClick(
                [this](Integer which) { events_.push_back("click " + std::to_string(which)); });
    }

    OptionButton& Option(int index) { return Get<OptionButton>("opt", index); }
    std::string Values()
    {
        std::string values;
        for (const int index : {0, 1, 2})
            values += Option(index).Value() ? "1" : "0";
        return values;
    }
};
KOVA_ON_EVERY_BENCH(OptionButtons);

TEST_P(OptionButtons, AreClearUnlessTheDesignSetsOne)
{
    EXPECT_EQ(Values(), "000");
    EXPECT_TRUE(Get<OptionButton>("optOutra", 0).Value());
}

TEST_P(OptionButtons, HaveAtMostOneSetInAGroup)
{
    Option(0).Value(true);
    EXPECT_EQ(Values(), "100");
    Option(2).Value(true);
    EXPECT_EQ(Values(), "001");
    EXPECT_EQ(TakeEvents(), (Events{"click 0", "click 2"}));
    EXPECT_TRUE(Get<OptionButton>("optOutra", 0).Value());
}

TEST_P(OptionButtons, RaiseClickForEveryWriteOfTrueAndNoneOfFalse)
{
    Option(1).Value(true);
    Option(1).Value(true);
    EXPECT_EQ(TakeEvents(), (Events{"click 1", "click 1"}));
    Option(1).Value(false);
    Option(1).Value(false);
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Values(), "000");
}

TEST_P(OptionButtons, AreChosenByTheUserAlsoWhereSetAlready)
{
    User().Press(Option(1));
    User().Press(Option(1));
    EXPECT_EQ(TakeEvents(), (Events{"click 1", "click 1"}));
    User().PressBySpace(Option(2));
    EXPECT_EQ(TakeEvents(), (Events{"click 2"}));
    EXPECT_EQ(Values(), "001");
    EXPECT_EQ(Focused(), "opt(2)");
}

TEST_P(OptionButtons, AreSetBeforeTheirClick)
{
    Option(0).Value(true);
    Option(1).OnClick([this](Integer) { events_.push_back(Values()); });
    TakeEvents();
    User().Press(Option(1));
    EXPECT_EQ(TakeEvents(), (Events{"010"}));
}

TEST_P(OptionButtons, ShowTheCaptionWritten)
{
    Option(0).Caption("Completo");
    EXPECT_EQ(Option(0).Caption(), "Completo");
    EXPECT_EQ(Option(1).Caption(), "");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(OptionButtons, TakeNoPressWhileDisabled)
{
    Option(1).Enabled(false);
    User().Press(Option(1));
    EXPECT_EQ(Values(), "000");
    EXPECT_EQ(TakeEvents(), Events());
}

} // namespace kova::conformance
