#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class ComboBox : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVComboBox, "kvcmb");
        Has(WidgetKind::KVTextBox, "kvtxt");
        Open();
        combo_ = &Get<KVComboBox>("kvcmb");
        combo_->OnClick([this] {
            events_.push_back("click " + std::to_string(combo_->ListIndex()) + " '" + combo_->Text() + "'");
        });
        combo_->OnDropDown(Note("drop"));
        combo_->OnLostFocus(Note("lost"));
    }

    void Fill()
    {
        for (const char* text : {"Canina", "Felina", "Ave", "Felina"})
            combo_->AddItem(text);
    }

    KVComboBox* combo_ = nullptr;
};
KOVA_ON_EVERY_BENCH(ComboBox);

TEST_P(ComboBox, IsEmptyAtFirst)
{
    EXPECT_EQ(combo_->ListCount(), 0);
    EXPECT_EQ(combo_->ListIndex(), -1);
    EXPECT_EQ(combo_->NewIndex(), -1);
    EXPECT_EQ(combo_->Text(), "");
}

TEST_P(ComboBox, KeepsItsRowsInTheOrderOfAddition)
{
    Fill();
    EXPECT_EQ(combo_->ListCount(), 4);
    EXPECT_EQ(combo_->List(0), "Canina");
    EXPECT_EQ(combo_->List(2), "Ave");
    EXPECT_EQ(combo_->List(4), "");
    EXPECT_EQ(combo_->List(-1), "");
    EXPECT_EQ(User().LookAtList(*combo_), (Events{"Canina", "Felina", "Ave", "Felina"}));
}

TEST_P(ComboBox, TellsTheRowOfTheLastAddItem)
{
    combo_->AddItem("a");
    EXPECT_EQ(combo_->NewIndex(), 0);
    combo_->AddItem("b");
    EXPECT_EQ(combo_->NewIndex(), 1);
    combo_->ListIndex(0);
    EXPECT_EQ(combo_->NewIndex(), 1);
    combo_->Clear();
    EXPECT_EQ(combo_->NewIndex(), -1);
}

TEST_P(ComboBox, RaisesNothingAndKeepsTheSelectionWhereARowIsAdded)
{
    Fill();
    combo_->ListIndex(1);
    TakeEvents();
    combo_->AddItem("Roedor");
    EXPECT_EQ(combo_->ListIndex(), 1);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(ComboBox, RaisesClickInsideEveryWriteOfListIndex)
{
    Fill();
    combo_->ListIndex(2);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Ave'"}));
    combo_->ListIndex(2);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Ave'"}));
    combo_->ListIndex(-1);
    EXPECT_EQ(TakeEvents(), (Events{"click -1 ''"}));
    combo_->ListIndex(-1);
    EXPECT_EQ(TakeEvents(), (Events{"click -1 ''"}));
}

TEST_P(ComboBox, ShowsTheTextOfTheSelectedRow)
{
    Fill();
    combo_->ListIndex(0);
    EXPECT_EQ(User().ShownText(*combo_), "Canina");
    combo_->ListIndex(-1);
    EXPECT_EQ(User().ShownText(*combo_), "");
    EXPECT_EQ(combo_->Text(), "");
}

TEST_P(ComboBox, FailsWhereListIndexLiesOutsideAndChangesNothing)
{
    Fill();
    combo_->ListIndex(1);
    TakeEvents();
    EXPECT_EQ(FailureOf([this] { combo_->ListIndex(4); }), 380);
    EXPECT_EQ(FailureOf([this] { combo_->ListIndex(-2); }), 380);
    EXPECT_EQ(combo_->ListIndex(), 1);
    EXPECT_EQ(TakeEvents(), Events());
    combo_->Clear();
    EXPECT_EQ(FailureOf([this] { combo_->ListIndex(0); }), 380);
}

TEST_P(ComboBox, KeepsANumberForEachRow)
{
    Fill();
    EXPECT_EQ(combo_->ItemData(1), 0);
    combo_->ItemData(1, 2147483647);
    combo_->ItemData(3, -7);
    combo_->AddItem("Roedor");
    EXPECT_EQ(combo_->ItemData(1), 2147483647);
    EXPECT_EQ(combo_->ItemData(3), -7);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(ComboBox, FailsWhereTheNumberOfAMissingRowIsAskedForOrWritten)
{
    Fill();
    EXPECT_EQ(FailureOf([this] { combo_->ItemData(4); }), 381);
    EXPECT_EQ(FailureOf([this] { combo_->ItemData(-1); }), 381);
    EXPECT_EQ(FailureOf([this] { combo_->ItemData(4, 1); }), 381);
    EXPECT_EQ(FailureOf([this] { combo_->ItemData(-1, 1); }), 381);
}

TEST_P(ComboBox, SelectsTheFirstRowOfATextThatIsWritten)
{
    Fill();
    combo_->Text("Felina");
    EXPECT_EQ(combo_->ListIndex(), 1);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Felina'"}));
    combo_->Text("Felina");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Felina'"}));
}

TEST_P(ComboBox, ShowsATextThatNoRowHoldsWithoutAnEvent)
{
    Fill();
    combo_->ListIndex(1);
    TakeEvents();
    for (const char* text : {"Equina", "felina", ""}) {
        combo_->Text(text);
        EXPECT_EQ(combo_->Text(), text);
        EXPECT_EQ(User().ShownText(*combo_), text);
        EXPECT_EQ(combo_->ListIndex(), -1);
    }
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(ComboBox, LosesRowsSelectionAndTextByClearWithoutAnEvent)
{
    Fill();
    combo_->ItemData(0, 9);
    combo_->ListIndex(0);
    TakeEvents();
    combo_->Clear();
    EXPECT_EQ(combo_->ListCount(), 0);
    EXPECT_EQ(combo_->ListIndex(), -1);
    EXPECT_EQ(User().ShownText(*combo_), "");
    EXPECT_EQ(TakeEvents(), Events());
    combo_->AddItem("Canina");
    EXPECT_EQ(combo_->ItemData(0), 0);
}

TEST_P(ComboBox, RaisesDropDownAndThenClickWhereTheUserChooses)
{
    Fill();
    User().Choose(*combo_, 2);
    EXPECT_EQ(TakeEvents(), (Events{"drop", "click 2 'Ave'"}));
    EXPECT_EQ(User().ShownText(*combo_), "Ave");
    EXPECT_EQ(Focused(), "kvcmb");
}

TEST_P(ComboBox, RaisesClickForTheRowThatIsSelectedAlready)
{
    Fill();
    User().Choose(*combo_, 1);
    TakeEvents();
    User().Choose(*combo_, 1);
    EXPECT_EQ(TakeEvents(), (Events{"drop", "click 1 'Felina'"}));
}

TEST_P(ComboBox, TellsTheSecondOfTwoEqualRowsApart)
{
    Fill();
    User().Choose(*combo_, 3);
    EXPECT_EQ(combo_->ListIndex(), 3);
}

TEST_P(ComboBox, ShowsTheRowsThatDropDownMade)
{
    combo_->OnDropDown([this] {
        combo_->Clear();
        combo_->AddItem("Banho");
        combo_->AddItem("Tosa");
    });
    EXPECT_EQ(User().LookAtList(*combo_), (Events{"Banho", "Tosa"}));
    User().Choose(*combo_, 1);
    EXPECT_EQ(combo_->Text(), "Tosa");
    EXPECT_EQ(combo_->ListCount(), 2);
}

TEST_P(ComboBox, RaisesNoClickWhereTheListIsLeft)
{
    Fill();
    combo_->ListIndex(1);
    TakeEvents();
    User().LookAtList(*combo_);
    EXPECT_EQ(TakeEvents(), (Events{"drop"}));
    EXPECT_EQ(combo_->ListIndex(), 1);
}

TEST_P(ComboBox, DoesNotOpenWhereDropDownShutsIt)
{
    Fill();
    combo_->OnDropDown([this] { combo_->Enabled(false); });
    EXPECT_EQ(User().LookAtList(*combo_), Events());
    User().Choose(*combo_, 1);
    EXPECT_EQ(combo_->ListIndex(), -1);
}

TEST_P(ComboBox, RaisesClickWhereAnArrowKeyChooses)
{
    Fill();
    combo_->ListIndex(1);
    TakeEvents();
    User().StepTo(*combo_, 2);
    User().StepTo(*combo_, 1);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Ave'", "click 1 'Felina'"}));
}

TEST_P(ComboBox, RaisesLostFocusWhereTheUserGoesOn)
{
    Fill();
    User().Choose(*combo_, 0);
    TakeEvents();
    User().Focus(Get<KVTextBox>("kvtxt"));
    EXPECT_EQ(TakeEvents(), (Events{"lost"}));
}

TEST_P(ComboBox, TakesNothingFromTheUserWhileItIsDisabled)
{
    Fill();
    combo_->Enabled(false);
    TakeEvents();
    User().Choose(*combo_, 1);
    EXPECT_EQ(User().LookAtList(*combo_), Events());
    EXPECT_EQ(combo_->ListIndex(), -1);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(ComboBox, RaisesClickForCodeAlsoWhileItIsDisabledOrHidden)
{
    Fill();
    combo_->Enabled(false);
    combo_->Visible(false);
    TakeEvents();
    combo_->ListIndex(1);
    combo_->Text("Ave");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Felina'", "click 2 'Ave'"}));
    combo_->Visible(true);
    EXPECT_EQ(User().ShownText(*combo_), "Ave");
}

TEST_P(ComboBox, MayBeWrittenAgainInsideItsClick)
{
    Fill();
    bool guard = false;
    combo_->OnClick([&] {
        if (guard)
            return;
        guard = true;
        combo_->ListIndex(0);
    });
    User().Choose(*combo_, 2);
    EXPECT_EQ(combo_->ListIndex(), 0);
    EXPECT_EQ(User().ShownText(*combo_), "Canina");
}

TEST_P(ComboBox, LetsAFailureOfItsClickThroughToTheWriter)
{
    Fill();
    combo_->OnClick([] { throw Failure(FailureNumber::NoObject); });
    EXPECT_EQ(FailureOf([this] { combo_->ListIndex(0); }), 91);
    User().Choose(*combo_, 1);
    EXPECT_EQ(TakeUnhandled(), (std::vector<std::int32_t>{91}));
    EXPECT_EQ(combo_->ListIndex(), 1);
}

} // namespace kova::conformance
