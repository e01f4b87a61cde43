// Text boxes and number boxes.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class TextBox : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTextBox, "kvtxt").maxLength = 5;
        ControlDesign& locked = Has(WidgetKind::KVTextBox, "kvtxtTravado");
        locked.locked = true;
        locked.text = "fixo";
        Has(WidgetKind::KVTextBox, "kvtxtLivre");
        Open();
        box_ = &Get<KVTextBox>("kvtxt");
        box_->OnLostFocus(Note("lost"));
    }

    KVTextBox* box_ = nullptr;
};
KOVA_ON_EVERY_BENCH(TextBox);

TEST_P(TextBox, TellsItsLimitAndItsLock)
{
    EXPECT_EQ(box_->MaxLength(), 5);
    EXPECT_FALSE(box_->Locked());
    EXPECT_TRUE(Get<KVTextBox>("kvtxtTravado").Locked());
    EXPECT_EQ(Get<KVTextBox>("kvtxtLivre").MaxLength(), 0);
}

TEST_P(TextBox, TakesWhatTheUserTypes)
{
    User().Type(*box_, "Ação");
    EXPECT_EQ(box_->Text(), "Ação");
    EXPECT_EQ(User().ShownText(*box_), "Ação");
    User().Type(*box_, "x");
    EXPECT_EQ(box_->Text(), "x");
}

TEST_P(TextBox, StopsTypingAtItsLimitOfCharacters)
{
    User().Type(*box_, "éàüõçx");
    EXPECT_EQ(box_->Text(), "éàüõç");
    User().PasteAtEnd(*box_, "z");
    EXPECT_EQ(box_->Text(), "éàüõç");
    User().Backspace(*box_);
    User().TypeOn(*box_, "zz");
    EXPECT_EQ(box_->Text(), "éàüõz");
}

TEST_P(TextBox, PastesUpToItsLimit)
{
    User().Type(*box_, "ab");
    User().PasteAtEnd(*box_, "cdefg");
    EXPECT_EQ(box_->Text(), "abcde");
}

TEST_P(TextBox, IsNotCutByCode)
{
    box_->Text("muito comprido");
    EXPECT_EQ(box_->Text(), "muito comprido");
    EXPECT_EQ(User().ShownText(*box_), "muito comprido");
    EXPECT_EQ(TakeEvents(), Events());
    User().Focus(*box_);
    User().TypeOn(*box_, "x");
    EXPECT_EQ(box_->Text(), "muito comprido");
}

TEST_P(TextBox, HasNoLimitWhereTheDesignSetsNone)
{
    const std::string text(120, 'a');
    User().Type(Get<KVTextBox>("kvtxtLivre"), text);
    EXPECT_EQ(Get<KVTextBox>("kvtxtLivre").Text(), text);
}

TEST_P(TextBox, ErasesByBackspaceAndDelete)
{
    User().Type(*box_, "abc");
    User().Backspace(*box_);
    EXPECT_EQ(box_->Text(), "ab");
    User().DeleteFirst(*box_);
    EXPECT_EQ(box_->Text(), "b");
    User().Type(*box_, "");
    EXPECT_EQ(box_->Text(), "");
    User().Backspace(*box_);
    EXPECT_EQ(box_->Text(), "");
}

TEST_P(TextBox, TakesNoTypingWhileItIsLockedAndStillTakesFocusAndCode)
{
    auto& locked = Get<KVTextBox>("kvtxtTravado");
    User().Focus(locked);
    EXPECT_EQ(Focused(), "kvtxtTravado");
    User().Type(locked, "x");
    User().TypeOn(locked, "x");
    User().Backspace(locked);
    User().PasteAtEnd(locked, "x");
    EXPECT_EQ(locked.Text(), "fixo");
    locked.Text("novo");
    EXPECT_EQ(User().ShownText(locked), "novo");
}

TEST_P(TextBox, TakesNoTypingWhileItIsDisabled)
{
    box_->Text("a");
    box_->Enabled(false);
    User().Type(*box_, "x");
    EXPECT_EQ(box_->Text(), "a");
    box_->Text("b");
    EXPECT_EQ(box_->Text(), "b");
}

TEST_P(TextBox, RaisesLostFocusAfterTheUsersTyping)
{
    box_->OnLostFocus([this] { events_.push_back("lost '" + box_->Text() + "'"); });
    User().Type(*box_, "abc");
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(TakeEvents(), (Events{"lost 'abc'"}));
}

class NumberBox : public WidgetsTest {
protected:
    void SetUp() override
    {
        ControlDesign& design = Has(WidgetKind::KVNumberBox, "kvnum");
        design.maxLength = 3;
        design.formatType = 1;
        Has(WidgetKind::KVTextBox, "kvtxt");
        Open();
        box_ = &Get<KVNumberBox>("kvnum");
        box_->OnLostFocus(Note("lost"));
    }

    KVNumberBox* box_ = nullptr;
};
KOVA_ON_EVERY_BENCH(NumberBox);

TEST_P(NumberBox, TakesDigitsUpToItsLimit)
{
    User().Type(*box_, "1a2-34");
    EXPECT_EQ(box_->Text(), "123");
    EXPECT_EQ(User().ShownText(*box_), "123");
}

TEST_P(NumberBox, RaisesKeyPressForEachCharacterBeforeItEnters)
{
    box_->OnKeyPress([this](Integer& character) {
        events_.push_back(std::to_string(character) + " '" + box_->Text() + "'");
    });
    User().Type(*box_, "1a2");
    EXPECT_EQ(TakeEvents(), (Events{"49 ''", "97 '1'", "50 '1'"}));
}

TEST_P(NumberBox, RaisesKeyPressAlsoWhereTheLimitIsReached)
{
    box_->Text("123");
    User().Focus(*box_);
    box_->OnKeyPress([this](Integer& character) { events_.push_back(std::to_string(character)); });
    User().TypeOn(*box_, "4");
    EXPECT_EQ(TakeEvents(), (Events{"52"}));
    EXPECT_EQ(box_->Text(), "123");
}

TEST_P(NumberBox, TakesTheCharacterThatKeyPressPutsInstead)
{
    box_->OnKeyPress([](Integer& character) {
        if (character == '7')
            character = '8';
    });
    User().Type(*box_, "17");
    EXPECT_EQ(box_->Text(), "18");
}

TEST_P(NumberBox, DropsACharacterThatKeyPressSetsToZero)
{
    box_->OnKeyPress([](Integer& character) {
        if (character == '7')
            character = 0;
    });
    User().Type(*box_, "172");
    EXPECT_EQ(box_->Text(), "12");
}

TEST_P(NumberBox, TellsBackspaceAsEightAndLetsItBeDropped)
{
    box_->Text("12");
    User().Focus(*box_);
    box_->OnKeyPress([this](Integer& character) { events_.push_back(std::to_string(character)); });
    User().Backspace(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"8"}));
    EXPECT_EQ(box_->Text(), "1");
    box_->OnKeyPress([](Integer& character) { character = 0; });
    User().Backspace(*box_);
    EXPECT_EQ(box_->Text(), "1");
}

TEST_P(NumberBox, RaisesNoEventForAWriteAndTakesItAsItStands)
{
    box_->OnKeyPress([this](Integer&) { events_.push_back("key"); });
    box_->Text("12345");
    EXPECT_EQ(box_->Text(), "12345");
    EXPECT_EQ(User().ShownText(*box_), "12345");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(NumberBox, AsksKeyPressForPastedCharacters)
{
    box_->OnKeyPress([this](Integer& character) { events_.push_back(std::to_string(character)); });
    User().Focus(*box_);
    User().PasteAtEnd(*box_, "1x2");
    EXPECT_EQ(TakeEvents(), (Events{"49", "120", "50"}));
    EXPECT_EQ(box_->Text(), "12");
}

TEST_P(NumberBox, RaisesLostFocus)
{
    User().Focus(*box_);
    User().Focus(Get<KVTextBox>("kvtxt"));
    EXPECT_EQ(TakeEvents(), (Events{"lost"}));
}

TEST_P(NumberBox, EndsTypingWhereKeyPressShutsIt)
{
    box_->OnKeyPress([this](Integer&) { box_->Enabled(false); });
    User().Type(*box_, "123");
    EXPECT_EQ(box_->Text(), "");
}

} // namespace kova::conformance
