#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

using Key = toolkit::ComboKey;

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

TEST_P(ComboBox, OpensItsListByAnArrowKeyAndRaisesClickForTheRowTakenOnly)
{
    Fill();
    combo_->ListIndex(1);
    combo_->SetFocus();
    TakeEvents();
    User().ComboKey(*combo_, Key::Down);
    EXPECT_EQ(User().MarkedRow(*combo_), "1");
    User().ComboKey(*combo_, Key::Down);
    User().ComboKey(*combo_, Key::Down);
    User().ComboKey(*combo_, Key::Down);
    User().ComboKey(*combo_, Key::Up);
    EXPECT_EQ(User().MarkedRow(*combo_), "2");
    EXPECT_EQ(TakeEvents(), (Events{"drop"}));
    EXPECT_EQ(combo_->ListIndex(), 1);
    User().ComboKey(*combo_, Key::Take);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Ave'"}));
    EXPECT_EQ(User().MarkedRow(*combo_), "shut");
    EXPECT_EQ(Focused(), "kvcmb");
}

TEST_P(ComboBox, OpensItsListByEveryKeyThatWalksInIt)
{
    Fill();
    combo_->SetFocus();
    for (const Key key : {Key::Up, Key::PageUp, Key::PageDown, Key::Home, Key::End, Key::Open}) {
        TakeEvents();
        User().ComboKey(*combo_, key);
        EXPECT_EQ(TakeEvents(), (Events{"drop"}));
        EXPECT_EQ(User().MarkedRow(*combo_), "none");
        User().ComboKey(*combo_, Key::Leave);
    }
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(ComboBox, WalksToTheEndsOfItsListAndByPages)
{
    for (int row = 0; row < 30; ++row)
        combo_->AddItem("Linha");
    combo_->SetFocus();
    User().ComboKey(*combo_, Key::Open);
    const std::vector<std::pair<Key, const char*>> walk{
        {Key::End, "29"}, {Key::PageUp, "17"}, {Key::PageUp, "5"},    {Key::PageUp, "0"},
        {Key::Up, "0"},   {Key::Down, "1"},    {Key::PageDown, "13"}, {Key::Home, "0"},
    };
    for (const auto& [key, row] : walk) {
        User().ComboKey(*combo_, key);
        EXPECT_EQ(User().MarkedRow(*combo_), row);
    }
}

TEST_P(ComboBox, KeepsItsRowWhereTheListIsLeftByEscape)
{
    Fill();
    combo_->ListIndex(1);
    combo_->SetFocus();
    TakeEvents();
    User().ComboKey(*combo_, Key::Open);
    User().ComboKey(*combo_, Key::End);
    User().ComboKey(*combo_, Key::Leave);
    EXPECT_EQ(TakeEvents(), (Events{"drop"}));
    EXPECT_EQ(combo_->ListIndex(), 1);
    User().ComboKey(*combo_, Key::Open);
    EXPECT_EQ(User().MarkedRow(*combo_), "1");
}

TEST_P(ComboBox, TakesNothingByEnterWhereNoRowIsMarked)
{
    Fill();
    combo_->SetFocus();
    TakeEvents();
    User().ComboKey(*combo_, Key::Open);
    User().ComboKey(*combo_, Key::Take);
    EXPECT_EQ(TakeEvents(), (Events{"drop"}));
    EXPECT_EQ(User().MarkedRow(*combo_), "shut");
}

TEST_P(ComboBox, DoesNotOpenWhereThereAreNoRows)
{
    EXPECT_EQ(User().LookAtList(*combo_), Events());
    combo_->SetFocus();
    User().ComboKey(*combo_, Key::Down);
    EXPECT_EQ(User().MarkedRow(*combo_), "shut");
    EXPECT_EQ(TakeEvents(), (Events{"drop", "drop"}));
    Fill();
    User().ComboKey(*combo_, Key::Down);
    EXPECT_EQ(User().MarkedRow(*combo_), "none");
}

TEST_P(ComboBox, ClosesItsListWhereItLosesTheFocusOrItsRows)
{
    Fill();
    combo_->SetFocus();
    User().ComboKey(*combo_, Key::Open);
    Get<KVTextBox>("kvtxt").SetFocus();
    EXPECT_EQ(User().MarkedRow(*combo_), "shut");
    combo_->SetFocus();
    User().ComboKey(*combo_, Key::Open);
    combo_->Clear();
    EXPECT_EQ(User().MarkedRow(*combo_), "shut");
}

TEST_P(ComboBox, TakesLettersOfOneSecondAsOneText)
{
    for (const char* breed : {"Labrador", "Pastor", "Poodle", "Pug"})
        combo_->AddItem(breed);
    combo_->SetFocus();
    User().TypeLetters(*combo_, "poodle");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Pastor'", "click 2 'Poodle'"}));
    User().PassTime(1.1);
    User().TypeLetters(*combo_, "l");
    EXPECT_EQ(combo_->Text(), "Labrador");
}

TEST_P(ComboBox, LooksForLettersAtTheBeginningsFirstAndThenInside)
{
    for (const char* service : {"Tosa e banho", "Banho", "Hidratação"})
        combo_->AddItem(service);
    combo_->SetFocus();
    User().TypeLetters(*combo_, "ban");
    EXPECT_EQ(combo_->ListIndex(), 1);
    User().PassTime(2);
    User().TypeLetters(*combo_, "e b");
    EXPECT_EQ(combo_->ListIndex(), 0);
    User().PassTime(2);
    User().TypeLetters(*combo_, "ÇÃO");
    EXPECT_EQ(combo_->ListIndex(), 2);
    User().PassTime(2);
    User().TypeLetters(*combo_, "hidratacao");
    EXPECT_EQ(combo_->ListIndex(), 2);
}

TEST_P(ComboBox, KeepsItsRowWhereNoRowHoldsTheLetters)
{
    Fill();
    combo_->ListIndex(2);
    combo_->SetFocus();
    TakeEvents();
    User().TypeLetters(*combo_, "xf");
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(User().ShownText(*combo_), "Ave");
}

TEST_P(ComboBox, GoesAlongTheRowsThatBeginWithALetterTypedAgain)
{
    Fill();
    combo_->SetFocus();
    TakeEvents();
    for (int round = 0; round < 3; ++round) {
        User().TypeLetters(*combo_, "f");
        User().PassTime(2);
    }
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Felina'", "click 3 'Felina'", "click 1 'Felina'"}));
}

TEST_P(ComboBox, MarksTheRowOfTheLettersInItsOpenList)
{
    Fill();
    combo_->SetFocus();
    User().ComboKey(*combo_, Key::Open);
    TakeEvents();
    User().TypeLetters(*combo_, "av");
    EXPECT_EQ(User().MarkedRow(*combo_), "2");
    EXPECT_EQ(TakeEvents(), Events());
    User().ComboKey(*combo_, Key::Take);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Ave'"}));
}

TEST_P(ComboBox, OpensItsListByTheSpaceBarUnlessAWordIsBeingTyped)
{
    combo_->AddItem("Banho");
    combo_->AddItem("Banho e tosa");
    combo_->SetFocus();
    User().TypeLetters(*combo_, "banho e");
    EXPECT_EQ(combo_->ListIndex(), 1);
    EXPECT_EQ(User().MarkedRow(*combo_), "shut");
    User().PassTime(2);
    User().TypeLetters(*combo_, " ");
    EXPECT_EQ(User().MarkedRow(*combo_), "1");
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
