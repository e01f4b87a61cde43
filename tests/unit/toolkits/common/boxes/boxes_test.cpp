#include "tests/unit/toolkits/common/fixture.hpp"
#include "toolkits/common/boxes/edit_core.hpp"

#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/common/boxes/number_box.hpp"
#include "toolkits/common/boxes/text_box.hpp"
#include "toolkits/common/boxes/time_box.hpp"

namespace kova::headless {

class DateBox : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVDTPicker, "kvdtp");
        Open();
        box_ = &Get<KVDTPicker>("kvdtp");
        box_->OnChange([this] { events_.push_back(box_->Text()); });
    }

    toolkit::DateBoxModel& Model() { return ModelOf<toolkit::DateBoxModel>("kvdtp"); }

    KVDTPicker* box_ = nullptr;
};

TEST_F(DateBox, IsEmptyByItsMask)
{
    EXPECT_EQ(box_->Text(), "__/__/____");
    box_->Text("01/02/2026");
    box_->Text("");
    EXPECT_EQ(box_->Text(), "__/__/____");
}

TEST_F(DateBox, FillsItsMaskFromTheLeft)
{
    user_.Type("frm", "kvdtp", "2112");
    EXPECT_EQ(box_->Text(), "21/12/____");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(DateBox, RaisesChangeOnceTheTextIsACompleteDate)
{
    user_.Type("frm", "kvdtp", "21/12/2026");
    EXPECT_EQ(TakeEvents(), (Events{"21/12/2026"}));
}

TEST_F(DateBox, RaisesNoChangeForAnImpossibleDate)
{
    user_.Type("frm", "kvdtp", "31/02/2026");
    EXPECT_EQ(box_->Text(), "31/02/2026");
    user_.Type("frm", "kvdtp", "31/12/1899");
    user_.Type("frm", "kvdtp", "01/01/3000");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(DateBox, AcceptsTheEndsOfItsRange)
{
    user_.Type("frm", "kvdtp", "01/01/1900");
    user_.Type("frm", "kvdtp", "31/12/2999");
    EXPECT_EQ(TakeEvents(), (Events{"01/01/1900", "31/12/2999"}));
}

TEST_F(DateBox, RaisesNoChangeForAWriteFromCode)
{
    box_->Text("20/11/2026");
    box_->Text("abc");
    EXPECT_EQ(box_->Text(), "abc");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(DateBox, StartsAnewWhereTheUserTypesIntoATextThatIsNoMask)
{
    box_->Text("abc");
    Model().UserTypes(U'3');
    EXPECT_EQ(box_->Text(), "3_/__/____");
}

TEST_F(DateBox, ErasesDigitsFromTheRight)
{
    user_.Type("frm", "kvdtp", "2112");
    Model().UserErases();
    Model().UserErases();
    Model().UserErases();
    EXPECT_EQ(box_->Text(), "2_/__/____");
    Model().UserErasesForward();
    EXPECT_EQ(box_->Text(), "2_/__/____");
    Model().UserSelects(0, 0);
    Model().UserErasesForward();
    EXPECT_EQ(box_->Text(), "__/__/____");
}

TEST_F(DateBox, RaisesChangeForACorrectedDigit)
{
    box_->Text("20/11/2026");
    Model().UserSelects(1, 1);
    Model().UserTypes(U'1');
    EXPECT_EQ(TakeEvents(), (Events{"21/11/2026"}));
}

TEST_F(DateBox, TakesAPastedDateWithOneChange)
{
    Model().UserEdits("05/06/2026");
    Model().UserEdits("x07062026");
    EXPECT_EQ(TakeEvents(), (Events{"05/06/2026", "07/06/2026"}));
}

TEST_F(DateBox, RaisesChangeForADayChosenInTheCalendar)
{
    user_.Pick("frm", "kvdtp", {2026, 3, 1});
    user_.Pick("frm", "kvdtp", {2026, 3, 1});
    user_.Pick("frm", "kvdtp", {3000, 1, 1});
    EXPECT_EQ(TakeEvents(), (Events{"01/03/2026"}));
}

class SmallBoxes : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTime, "kvtim");
        Has(WidgetKind::KVNumberBox, "kvnum").maxLength = 3;
        Has(WidgetKind::KVTextBox, "kvtxt").maxLength = 5;
        auto& locked = Has(WidgetKind::KVTextBox, "kvtxtLocked");
        locked.locked = true;
        locked.text = "Zé";
        Open();
    }
};

TEST_F(SmallBoxes, TimeFillsItsMask)
{
    auto& time = Get<KVTime>("kvtim");
    EXPECT_EQ(time.Text(), "__:__");
    user_.Type("frm", "kvtim", "0930");
    EXPECT_EQ(time.Text(), "09:30");
    user_.Type("frm", "kvtim", "08:4");
    EXPECT_EQ(time.Text(), "08:4_");
    time.Text("");
    EXPECT_EQ(time.Text(), "__:__");
}

TEST_F(SmallBoxes, TimeKeepsAWriteAsItStands)
{
    Get<KVTime>("kvtim").Text("9:5");
    EXPECT_EQ(Get<KVTime>("kvtim").Text(), "9:5");
}

TEST_F(SmallBoxes, NumberAsksItsHandlerBeforeACharacterEnters)
{
    auto& number = Get<KVNumberBox>("kvnum");
    number.OnKeyPress([this, &number](Integer& character) {
        events_.push_back(std::to_string(character) + " '" + number.Text() + "'");
        if (character == '5')
            character = '6';
        if (character == 'x')
            character = 0;
    });
    user_.Type("frm", "kvnum", "1x5");
    EXPECT_EQ(number.Text(), "16");
    EXPECT_EQ(TakeEvents(), (Events{"49 ''", "120 '1'", "53 '1'"}));
}

TEST_F(SmallBoxes, NumberAsksItsHandlerBeforeTheLimitCounts)
{
    auto& number = Get<KVNumberBox>("kvnum");
    number.OnKeyPress([this](Integer& character) { events_.push_back(std::to_string(character)); });
    user_.Type("frm", "kvnum", "1234");
    EXPECT_EQ(number.Text(), "123");
    EXPECT_EQ(TakeEvents().size(), 4U);
}

TEST_F(SmallBoxes, NumberReportsBackspaceAsEight)
{
    auto& number = Get<KVNumberBox>("kvnum");
    number.SetFocus();
    number.Text("12");
    bool keep = true;
    number.OnKeyPress([&](Integer& character) {
        EXPECT_EQ(character, 8);
        if (keep)
            character = 0;
    });
    ModelOf<toolkit::NumberBoxModel>("kvnum").UserErases();
    EXPECT_EQ(number.Text(), "12");
    keep = false;
    ModelOf<toolkit::NumberBoxModel>("kvnum").UserErases();
    EXPECT_EQ(number.Text(), "1");
}

TEST_F(SmallBoxes, NumberTakesNoLetterEvenWithoutAHandler)
{
    user_.Type("frm", "kvnum", "a7");
    EXPECT_EQ(Get<KVNumberBox>("kvnum").Text(), "7");
}

TEST_F(SmallBoxes, TextStopsTypingAtItsLimitOfCharacters)
{
    user_.Type("frm", "kvtxt", "áéíóúxyz");
    EXPECT_EQ(Get<KVTextBox>("kvtxt").Text(), "áéíóú");
    EXPECT_EQ(Get<KVTextBox>("kvtxt").MaxLength(), 5);
}

TEST_F(SmallBoxes, TextIsNotCutWhenCodeWritesIt)
{
    Get<KVTextBox>("kvtxt").Text("123456789");
    EXPECT_EQ(Get<KVTextBox>("kvtxt").Text(), "123456789");
}

TEST_F(SmallBoxes, LockedTextTakesFocusAndWritesButNoTyping)
{
    auto& box = Get<KVTextBox>("kvtxtLocked");
    EXPECT_TRUE(box.Locked());
    EXPECT_EQ(user_.Type("frm", "kvtxtLocked", "x"), "frm.kvtxtLocked is locked");
    EXPECT_EQ(box.Text(), "Zé");
    EXPECT_EQ(user_.Focus("frm", "kvtxtLocked"), "");
    EXPECT_TRUE(ModelOf<toolkit::TextBoxModel>("kvtxtLocked").HasFocus());
    box.Text("novo");
    EXPECT_EQ(box.Text(), "novo");
}

TEST_F(SmallBoxes, TypingAnEmptyTextEmptiesTheBox)
{
    Get<KVTextBox>("kvtxt").Text("abc");
    EXPECT_EQ(user_.Type("frm", "kvtxt", ""), "");
    EXPECT_EQ(Get<KVTextBox>("kvtxt").Text(), "");
}

TEST_F(SmallBoxes, SentKeysSelectFromTheCaretToTheStart)
{
    user_.Type("frm", "kvtxt", "abc");
    toolkit_.SendKeys("+({HOME})");
    EXPECT_EQ(ModelOf<toolkit::TextBoxModel>("kvtxt").ShownSelection(), (toolkit::TextSelection{3, 0}));
    ModelOf<toolkit::TextBoxModel>("kvtxt").UserTypes(U'z');
    EXPECT_EQ(Get<KVTextBox>("kvtxt").Text(), "z");
    EXPECT_EQ(FailureOf([this] { toolkit_.SendKeys("{F1}"); }), 5);
}

TEST_F(SmallBoxes, ATextWrittenByCodeShowsItsBeginningUnlessTheUserIsInTheBox)
{
    Get<KVTextBox>("kvtxt").Text("Rua das Flores");
    EXPECT_EQ(ModelOf<toolkit::EditCore>("kvtxt").ShownSelection().caret, 0U);
    Get<KVTextBox>("kvtxt").SetFocus();
    Get<KVTextBox>("kvtxt").Text("Rua");
    EXPECT_EQ(ModelOf<toolkit::EditCore>("kvtxt").ShownSelection().caret, 3U);
}

} // namespace kova::headless
