// Date boxes and time boxes.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class DateBox : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVDTPicker, "kvdtp");
        Has(WidgetKind::KVTextBox, "kvtxt");
        Open();
        Get<KVTextBox>("kvtxt").SetFocus();
        box_ = &Get<KVDTPicker>("kvdtp");
        box_->OnChange([this] { events_.push_back("change " + box_->Text()); });
        box_->OnGotFocus(Note("got"));
        box_->OnLostFocus([this] { events_.push_back("lost " + box_->Text()); });
    }

    /// Focuses the box and hears no more of that.
    void Enter()
    {
        User().Focus(*box_);
        TakeEvents();
    }

    KVDTPicker* box_ = nullptr;
};
KOVA_ON_EVERY_BENCH(DateBox);

TEST_P(DateBox, ShowsTheMaskWhereItIsEmpty)
{
    EXPECT_EQ(box_->Text(), "__/__/____");
    box_->Text("20/11/2026");
    box_->Text("");
    EXPECT_EQ(box_->Text(), "__/__/____");
    EXPECT_EQ(User().ShownText(*box_), "__/__/____");
}

TEST_P(DateBox, ShowsWhatCodeWritesAsItStandsWithoutAnEvent)
{
    for (const char* text : {"20/11/2026", "31/02/2026", "1_/__/____", "amanhã"}) {
        box_->Text(text);
        EXPECT_EQ(box_->Text(), text);
        EXPECT_EQ(User().ShownText(*box_), text);
    }
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(DateBox, FillsItsMaskFromTheLeft)
{
    Enter();
    User().Type(*box_, "2x0/1");
    EXPECT_EQ(box_->Text(), "20/1_/____");
    EXPECT_EQ(User().ShownText(*box_), "20/1_/____");
    User().TypeOn(*box_, "1");
    EXPECT_EQ(box_->Text(), "20/11/____");
}

TEST_P(DateBox, RaisesChangeOnceWhereTypingCompletesADate)
{
    Enter();
    User().Type(*box_, "2011202");
    EXPECT_EQ(TakeEvents(), Events());
    User().TypeOn(*box_, "6");
    EXPECT_EQ(TakeEvents(), (Events{"change 20/11/2026"}));
    EXPECT_EQ(box_->Text(), "20/11/2026");
}

TEST_P(DateBox, IsBegunAnewByADigitBehindACompleteText)
{
    Enter();
    User().Type(*box_, "31022026");
    User().TypeOn(*box_, "2");
    EXPECT_EQ(box_->Text(), "2_/__/____");
    EXPECT_EQ(TakeEvents(), Events());
    User().TypeOn(*box_, "8022026");
    EXPECT_EQ(TakeEvents(), (Events{"change 28/02/2026"}));
}

TEST_P(DateBox, IsSelectedByThePressThatEntersIt)
{
    box_->Text("20/11/2026");
    Enter();
    EXPECT_EQ(User().SelectedText(*box_), "20/11/2026");
    User().TypeOn(*box_, "03122026");
    EXPECT_EQ(box_->Text(), "03/12/2026");
    EXPECT_EQ(TakeEvents(), (Events{"change 03/12/2026"}));
}

TEST_P(DateBox, IsPointedAtByTheNextPress)
{
    box_->Text("20/11/2026");
    Enter();
    User().Focus(*box_);
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(Focused(), "kvdtp");
}

TEST_P(DateBox, TakesNoMoreOfAPastedTextThanItsMaskHolds)
{
    Enter();
    User().PasteAtEnd(*box_, "20/11/2026 10:15");
    EXPECT_EQ(box_->Text(), "20/11/2026");
}

TEST_P(DateBox, TellsACompleteTextThatIsNoDate)
{
    const std::vector<std::pair<const char*, bool>> texts{
        {"", false},          {"31/02/2026", true}, {"28/02/2026", false}, {"31/02/____", false},
        {"01/01/3000", true}, {"31/12/1899", true}, {"amanhã", true},
    };
    for (const auto& [text, isNonsense] : texts) {
        box_->Text(text);
        EXPECT_EQ(User().ShowsNonsense(*box_), isNonsense) << text;
    }
    User().Type(*box_, "31022026");
    EXPECT_TRUE(User().ShowsNonsense(*box_));
    User().Backspace(*box_);
    EXPECT_FALSE(User().ShowsNonsense(*box_));
}

TEST_P(DateBox, RaisesNoChangeForAnImpossibleDate)
{
    Enter();
    for (const char* digits : {"31022026", "20132026", "00112026", "20111899", "01013000"})
        User().Type(*box_, digits);
    EXPECT_EQ(box_->Text(), "01/01/3000");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(DateBox, TakesTheFirstAndTheLastDateOfItsRange)
{
    Enter();
    User().Type(*box_, "01011900");
    User().Type(*box_, "31122999");
    User().Type(*box_, "29022024");
    EXPECT_EQ(TakeEvents(), (Events{"change 01/01/1900", "change 31/12/2999", "change 29/02/2024"}));
}

TEST_P(DateBox, RaisesNoChangeWhileADateIsErased)
{
    box_->Text("20/11/2026");
    Enter();
    User().PasteAtEnd(*box_, "");
    User().Backspace(*box_);
    EXPECT_EQ(box_->Text(), "20/11/202_");
    EXPECT_EQ(TakeEvents(), Events());
    User().TypeOn(*box_, "7");
    EXPECT_EQ(TakeEvents(), (Events{"change 20/11/2027"}));
    User().Type(*box_, "");
    EXPECT_EQ(box_->Text(), "__/__/____");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(DateBox, RaisesChangeWhereTheUserPicksADay)
{
    box_->Text("20/11/2026");
    User().Pick(*box_, {2026, 12, 3});
    EXPECT_EQ(TakeEvents(), (Events{"got", "change 03/12/2026"}));
    EXPECT_EQ(User().ShownText(*box_), "03/12/2026");
    EXPECT_EQ(Focused(), "kvdtp");
}

TEST_P(DateBox, RaisesNoChangeWhereTheUserPicksTheDayOnShow)
{
    box_->Text("20/11/2026");
    Enter();
    User().Pick(*box_, {2026, 11, 20});
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(DateBox, IsPickedFromWhereItIsEmptyOrShowsNoDate)
{
    Enter();
    User().Pick(*box_, {2026, 11, 19});
    box_->Text("31/02/2026");
    User().Pick(*box_, {2026, 10, 1});
    EXPECT_EQ(TakeEvents(), (Events{"change 19/11/2026", "change 01/10/2026"}));
}

TEST_P(DateBox, RaisesGotFocusAndLostFocusWithATextThatIsNoDate)
{
    User().Type(*box_, "3102");
    EXPECT_EQ(TakeEvents(), (Events{"got"}));
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(TakeEvents(), (Events{"lost 31/02/____"}));
    EXPECT_EQ(box_->Text(), "31/02/____");
}

TEST_P(DateBox, MayBeWrittenInsideItsChange)
{
    box_->OnChange([this] { box_->Text("01/01/2027"); });
    User().Type(*box_, "20112026");
    EXPECT_EQ(box_->Text(), "01/01/2027");
    EXPECT_EQ(User().ShownText(*box_), "01/01/2027");
}

TEST_P(DateBox, TakesNothingFromTheUserWhileItIsDisabled)
{
    box_->Text("20/11/2026");
    box_->Enabled(false);
    User().Type(*box_, "01012027");
    User().Pick(*box_, {2026, 12, 3});
    EXPECT_EQ(box_->Text(), "20/11/2026");
    EXPECT_EQ(TakeEvents(), Events());
}

class TimeBox : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTime, "kvtim");
        Has(WidgetKind::KVTextBox, "kvtxt");
        Open();
        box_ = &Get<KVTime>("kvtim");
        box_->OnLostFocus([this] { events_.push_back("lost " + box_->Text()); });
    }

    KVTime* box_ = nullptr;
};
KOVA_ON_EVERY_BENCH(TimeBox);

TEST_P(TimeBox, ShowsTheMaskWhereItIsEmpty)
{
    EXPECT_EQ(box_->Text(), "__:__");
    box_->Text("10:15");
    box_->Text("");
    EXPECT_EQ(box_->Text(), "__:__");
    EXPECT_EQ(User().ShownText(*box_), "__:__");
}

TEST_P(TimeBox, ShowsWhatCodeWritesAsItStands)
{
    for (const char* text : {"10:15", "99:99", "1_:__", "cedo"}) {
        box_->Text(text);
        EXPECT_EQ(box_->Text(), text);
        EXPECT_EQ(User().ShownText(*box_), text);
    }
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(TimeBox, FillsItsMaskFromTheLeft)
{
    User().Type(*box_, "0:8h3");
    EXPECT_EQ(box_->Text(), "08:3_");
    User().TypeOn(*box_, "0");
    EXPECT_EQ(box_->Text(), "08:30");
    EXPECT_EQ(User().ShownText(*box_), "08:30");
    User().TypeOn(*box_, "1");
    EXPECT_EQ(box_->Text(), "1_:__");
}

TEST_P(TimeBox, IsTypedAnewWhereALostFocusTakesTheFocusBack)
{
    User().Type(*box_, "0700");
    box_->OnLostFocus([this] { box_->SetFocus(); });
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(Focused(), "kvtim");
    EXPECT_EQ(User().SelectedText(*box_), "07:00");
    User().TypeOn(*box_, "1630");
    EXPECT_EQ(box_->Text(), "16:30");
}

TEST_P(TimeBox, TellsACompleteTextThatIsNoTime)
{
    const std::vector<std::pair<const char*, bool>> texts{
        {"", false}, {"25:00", true}, {"23:59", false}, {"24:00", true}, {"25:0_", false}, {"8:30", true},
    };
    for (const auto& [text, isNonsense] : texts) {
        box_->Text(text);
        EXPECT_EQ(User().ShowsNonsense(*box_), isNonsense) << text;
    }
}

TEST_P(TimeBox, LosesDigitsByBackspaceAndKeepsItsMask)
{
    User().Type(*box_, "0830");
    User().Backspace(*box_);
    User().Backspace(*box_);
    EXPECT_EQ(box_->Text(), "08:__");
    User().Backspace(*box_);
    EXPECT_EQ(box_->Text(), "0_:__");
    User().DeleteFirst(*box_);
    EXPECT_EQ(box_->Text(), "__:__");
}

TEST_P(TimeBox, IsTypedAnewOverATextThatFitsNoMask)
{
    box_->Text("cedo");
    User().Type(*box_, "9");
    EXPECT_EQ(box_->Text(), "9_:__");
}

TEST_P(TimeBox, RaisesLostFocusWithWhatWasTyped)
{
    User().Type(*box_, "081");
    User().Key(*form_, FormKey::Tab);
    EXPECT_EQ(TakeEvents(), (Events{"lost 08:1_"}));
}

TEST_P(TimeBox, TakesNoTypingWhileItIsDisabled)
{
    box_->Enabled(false);
    User().Type(*box_, "0830");
    EXPECT_EQ(box_->Text(), "__:__");
}

} // namespace kova::conformance
