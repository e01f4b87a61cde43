#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class FindBox : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVFind, "kvf").caption = "Animal";
        Has(WidgetKind::KVFind, "kvfnd").announcesEndOfSearch = true;
        Has(WidgetKind::KVFind, "kvfCodigo").style = 2;
        Open();
        box_ = &Get<KVFind>("kvf");
        dialogBox_ = &Get<KVFind>("kvfnd");
        Listen(*box_);
        Listen(*dialogBox_);
    }

    void Listen(KVFind& box)
    {
        box.OnClick([this, &box] {
            events_.push_back("click " + std::to_string(box.Status()) + " '" + box.Text() + "'");
        });
        box.OnKeyDown([this](Integer code, Integer) { events_.push_back("key " + std::to_string(code)); });
        box.OnLostFocus(Note("lost"));
    }

    void ShowRecord(const char* text)
    {
        box_->Text(text);
        box_->Status(find_status::Found);
    }

    KVFind* box_ = nullptr;
    KVFind* dialogBox_ = nullptr;
};
KOVA_ON_EVERY_BENCH(FindBox);

TEST_P(FindBox, WaitsForASearchByDesign)
{
    EXPECT_EQ(box_->Status(), 2);
    EXPECT_EQ(box_->Text(), "");
    EXPECT_TRUE(User().ShowsMagnifier(*box_));
}

TEST_P(FindBox, IsOfTheStyleOfItsDesign)
{
    EXPECT_EQ(box_->Style(), 1);
    EXPECT_EQ(Get<KVFind>("kvfCodigo").Style(), 2);
}

TEST_P(FindBox, ReportsASearchWhereItWaitsForOne)
{
    box_->Text("Rex");
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Rex'"}));
    EXPECT_EQ(box_->Status(), 1);
    EXPECT_EQ(box_->Text(), "Rex");
}

TEST_P(FindBox, ReportsASearchAlsoWhereItIsEmpty)
{
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 ''"}));
}

TEST_P(FindBox, EmptiesItselfAtThePressAfterASearch)
{
    User().Type(*box_, "Rex");
    User().PressFind(*box_);
    TakeEvents();
    EXPECT_FALSE(User().ShowsMagnifier(*box_));
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
    EXPECT_EQ(User().ShownText(*box_), "");
    EXPECT_TRUE(User().ShowsMagnifier(*box_));
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 ''"}));
}

TEST_P(FindBox, EmptiesItselfWhereItShowsAFoundRecord)
{
    ShowRecord("Maria");
    EXPECT_FALSE(User().ShowsMagnifier(*box_));
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
    EXPECT_EQ(box_->Status(), 2);
}

TEST_P(FindBox, SearchesAtOnceWhatTheUserTypedOverAFoundRecord)
{
    ShowRecord("Maria");
    User().Type(*box_, "Jo");
    EXPECT_TRUE(User().ShowsMagnifier(*box_));
    EXPECT_EQ(box_->Status(), 0);
    TakeEvents();
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Jo'"}));
}

TEST_P(FindBox, CountsErasingAsTyping)
{
    ShowRecord("Maria");
    User().Focus(*box_);
    User().PasteAtEnd(*box_, "");
    EXPECT_FALSE(User().ShowsMagnifier(*box_));
    User().Type(*box_, "");
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_TRUE(User().ShowsMagnifier(*box_));
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 ''"}));
}

TEST_P(FindBox, SearchesAgainWhatTheUserTypedIntoARunningSearch)
{
    User().Type(*box_, "Rex");
    User().PressFind(*box_);
    User().Type(*box_, "Bob");
    TakeEvents();
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Bob'"}));
}

TEST_P(FindBox, ForgetsWhatWasTypedWhereCodeWritesTheStatus)
{
    User().Type(*box_, "Jo");
    box_->Status(find_status::Found);
    EXPECT_FALSE(User().ShowsMagnifier(*box_));
    TakeEvents();
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
}

TEST_P(FindBox, ForgetsWhatWasTypedWhereCodeWritesTheText)
{
    box_->Status(find_status::Found);
    User().Type(*box_, "Jo");
    box_->Text("Joana");
    EXPECT_FALSE(User().ShowsMagnifier(*box_));
    TakeEvents();
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
}

TEST_P(FindBox, SearchesAtTheFirstPressAfterAResetAndTyping)
{
    box_->Status(find_status::Clear);
    box_->Text("");
    box_->Status(find_status::Found);
    User().Type(*box_, "12");
    TakeEvents();
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 '12'"}));
}

TEST_P(FindBox, ChangesItsStatusByNothingButPressAndCode)
{
    for (const Long status : {Long(0), Long(1), Long(2), Long(7)}) {
        box_->Status(status);
        User().Type(*box_, "x");
        User().Type(*box_, "");
        box_->Text("y");
        box_->DisplayText("");
        EXPECT_EQ(box_->Status(), status);
    }
}

TEST_P(FindBox, RaisesNothingForWritesFromCode)
{
    box_->Text("Rex");
    box_->Status(1);
    box_->Status(0);
    box_->Status(2);
    box_->DisplayText("");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FindBox, RaisesKeyDownOnceForEachCharacterTyped)
{
    User().Type(*box_, "aé1");
    EXPECT_EQ(TakeEvents(), (Events{"key 65", "key 0", "key 49"}));
    EXPECT_EQ(box_->Text(), "aé1");
    EXPECT_EQ(User().ShownText(*box_), "aé1");
}

TEST_P(FindBox, RaisesNoKeyDownForErasing)
{
    User().Type(*box_, "ab");
    TakeEvents();
    User().Backspace(*box_);
    EXPECT_EQ(box_->Text(), "a");
    User().DeleteFirst(*box_);
    EXPECT_EQ(box_->Text(), "");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FindBox, TakesAPastedTextCharacterByCharacter)
{
    User().Type(*box_, "a");
    TakeEvents();
    User().PasteAtEnd(*box_, "bc");
    EXPECT_EQ(TakeEvents(), (Events{"key 66", "key 67"}));
    EXPECT_EQ(box_->Text(), "abc");
}

TEST_P(FindBox, ShowsNothingAfterDisplayTextAndKeepsStatusAndPicture)
{
    ShowRecord("Maria");
    box_->DisplayText("");
    EXPECT_EQ(box_->Text(), "");
    EXPECT_EQ(User().ShownText(*box_), "");
    EXPECT_EQ(box_->Status(), 0);
    EXPECT_FALSE(User().ShowsMagnifier(*box_));
}

TEST_P(FindBox, TakesNoOtherDisplayText)
{
    EXPECT_EQ(FailureOf([this] { box_->DisplayText("x"); }), 380);
    EXPECT_EQ(box_->Text(), "");
}

TEST_P(FindBox, IsEmptiedByTheKeyDownOfItsSibling)
{
    box_->Text("Maria");
    dialogBox_->OnKeyDown([this](Integer, Integer) { box_->DisplayText(""); });
    User().Focus(*dialogBox_);
    TakeEvents();
    User().TypeOn(*dialogBox_, "R");
    EXPECT_EQ(box_->Text(), "");
    EXPECT_EQ(dialogBox_->Text(), "R");
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FindBox, WaitsAgainWithItsTextSelectedAfterReiniciarPesquisa)
{
    User().Type(*box_, "Rex");
    User().PressFind(*box_);
    TakeEvents();
    box_->ReiniciarPesquisa();
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Rex'"}));
    EXPECT_EQ(box_->Status(), 2);
    EXPECT_EQ(User().SelectedText(*box_), "Rex");
    EXPECT_TRUE(User().ShowsMagnifier(*box_));
    User().TypeOn(*box_, "B");
    EXPECT_EQ(box_->Text(), "B");
}

TEST_P(FindBox, MayBeRestartedInsideItsOwnClick)
{
    bool guard = false;
    box_->OnClick([&] {
        events_.push_back("click " + std::to_string(box_->Status()));
        if (!std::exchange(guard, true))
            box_->ReiniciarPesquisa();
    });
    User().Type(*box_, "Rex");
    TakeEvents();
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1", "click 2"}));
    EXPECT_EQ(User().SelectedText(*box_), "Rex");
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1"}));
}

TEST_P(FindBox, ReportsOneKeyDownAfterAClickThatFilledIt)
{
    User().Type(*box_, "Rex");
    TakeEvents();
    box_->OnClick([this] {
        box_->Text("Re");
        box_->Text("Rex da Silva");
        events_.push_back("click");
    });
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click", "key 0"}));
    EXPECT_EQ(box_->Text(), "Rex da Silva");
    User().TypeOn(*box_, "x");
    EXPECT_EQ(TakeEvents(), (Events{"key 88"}));
}

TEST_P(FindBox, ReportsNoKeyDownWhereItsClickWroteNothingIntoIt)
{
    box_->OnClick([this] {
        box_->Text("");
        box_->DisplayText("");
        dialogBox_->Text("Maria");
    });
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FindBox, ReportsNoKeyDownOfASiblingThatItsClickFilled)
{
    box_->OnClick([this] { dialogBox_->Text("Maria"); });
    dialogBox_->OnClick([this] { events_.push_back("click"); });
    User().PressFind(*box_);
    User().PressFind(*dialogBox_);
    EXPECT_EQ(TakeEvents(), (Events{"lost", "click"}));
}

TEST_P(FindBox, ReportsOneKeyDownWhereAClickInsideItsClickFilledIt)
{
    box_->OnClick([this] {
        if (box_->Status() == find_status::Search)
            box_->ReiniciarPesquisa();
        else
            box_->Text("Rex");
        events_.push_back("click");
    });
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click", "click", "key 0"}));
}

TEST_P(FindBox, ReportsNoKeyDownWhereItsClickFails)
{
    box_->OnClick([this] {
        box_->Text("Rex");
        throw Failure(FailureNumber::NoObject);
    });
    User().PressFind(*box_);
    EXPECT_EQ(TakeUnhandled(), (std::vector<std::int32_t>{91}));
    EXPECT_EQ(TakeEvents(), Events());
    box_->OnClick([this] { events_.push_back("click"); });
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

TEST_P(FindBox, ReportsNoKeyDownOnAFormThatItsClickUnloads)
{
    box_->OnClick([this] {
        box_->Text("Rex");
        form_->Unload();
    });
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(FindBox, OfADialogEndsTheFormerSearchBeforeANewOne)
{
    User().Type(*dialogBox_, "Rex");
    TakeEvents();
    User().PressFind(*dialogBox_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Rex'"}));
    User().Type(*dialogBox_, "Bob");
    TakeEvents();
    User().PressFind(*dialogBox_);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Bob'", "click 1 'Bob'"}));
    User().PressFind(*dialogBox_);
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
}

TEST_P(FindBox, OfADialogEndsNoSearchThatIsNotInForce)
{
    dialogBox_->Status(find_status::Found);
    User().Type(*dialogBox_, "Bob");
    TakeEvents();
    User().PressFind(*dialogBox_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Bob'"}));
}

TEST_P(FindBox, SearchesByEnterWhereAPressWould)
{
    User().Type(*box_, "Rex");
    TakeEvents();
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Rex'"}));
    EXPECT_EQ(Focused(), "kvf");
}

TEST_P(FindBox, GoesOnByEnterWhereAPressWouldClear)
{
    ShowRecord("Maria");
    User().Focus(*box_);
    User().Key(*form_, FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"lost"}));
    EXPECT_EQ(Focused(), "kvfnd");
    EXPECT_EQ(box_->Text(), "Maria");
}

TEST_P(FindBox, TakesTheFocusByItsButtonBeforeTheClick)
{
    User().Focus(*dialogBox_);
    TakeEvents();
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"lost", "click 1 ''"}));
    EXPECT_EQ(Focused(), "kvf");
}

TEST_P(FindBox, TakesNothingFromTheUserWhileItIsDisabled)
{
    box_->Text("Maria");
    box_->Enabled(false);
    TakeEvents();
    User().Type(*box_, "x");
    User().PressFind(*box_);
    EXPECT_EQ(box_->Text(), "Maria");
    EXPECT_EQ(TakeEvents(), Events());
    box_->Text("José");
    box_->Enabled(true);
    EXPECT_EQ(User().ShownText(*box_), "José");
    User().PressFind(*box_);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'José'"}));
}

TEST_P(FindBox, DropsTheCharacterWhoseKeyDownUnloadsTheForm)
{
    box_->OnKeyDown([this](Integer, Integer) { form_->Unload(); });
    User().Type(*box_, "Rex");
    EXPECT_EQ(box_->Text(), "");
}

} // namespace kova::conformance
