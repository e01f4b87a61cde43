// Modal forms and message boxes.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class ModalForms : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVCommandButton, "kvcmd");
        Has(WidgetKind::KVTextBox, "kvtxt");
        Open();
        Get<KVCommandButton>("kvcmd").OnClick(Note("below"));
        dialog_ = MakeWindow("frmDialogo");
        Bind<KVCommandButton>(dialog_, "kvcmd").OnClick(Note("dialog"));
    }

    void Then(std::function<void()> action) { TheScript().actions.push_back(std::move(action)); }
    void PressBelow() { User().Press(Get<KVCommandButton>("kvcmd")); }
    void PressDialog() { User().Press(Bind<KVCommandButton>(dialog_, "kvcmd")); }

    FormRef dialog_;
};
KOVA_ON_EVERY_BENCH(ModalForms);

TEST_P(ModalForms, ReturnOnceHidden)
{
    Then([this] {
        PressDialog();
        EXPECT_TRUE(dialog_->Visible());
        dialog_->Hide();
        events_.push_back("hidden");
    });
    dialog_->Show(ShowMode::Modal);
    events_.push_back("returned");
    EXPECT_EQ(TakeEvents(), (Events{"dialog", "hidden", "returned"}));
    EXPECT_TRUE(dialog_->IsLoaded());
    EXPECT_FALSE(dialog_->Visible());
    EXPECT_EQ(Bind<KVTextBox>(dialog_, "kvtxt").Text(), "");
}

TEST_P(ModalForms, ReturnOnceUnloaded)
{
    Then([this] { dialog_->Unload(); });
    dialog_->Show(ShowMode::Modal);
    EXPECT_FALSE(dialog_->IsLoaded());
}

TEST_P(ModalForms, ReturnOnceTheUserClosesTheWindow)
{
    dialog_->OnUnload([this](bool&) { events_.push_back("unload"); });
    Then([this] { User().CloseWindow(*dialog_); });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"unload"}));
    EXPECT_FALSE(dialog_->IsLoaded());
}

TEST_P(ModalForms, CanBeClosedByTheUserAlsoWhereTheyWereLeftDisabled)
{
    Then([this] {
        dialog_->Enabled(false);
        User().CloseWindow(*dialog_);
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_FALSE(dialog_->IsLoaded());
}

TEST_P(ModalForms, CannotBeClosedByTheUserDuringAPause)
{
    Then([this] {
        dialog_->Enabled(false);
        Kit().PauseBegins(1);
        User().CloseWindow(*dialog_);
        Kit().PauseEnds();
        events_.push_back(dialog_->IsLoaded() ? "still there" : "gone");
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"still there"}));
}

TEST_P(ModalForms, ReturnAfterTheHandlerThatHidesThemHasEnded)
{
    Bind<KVCommandButton>(dialog_, "kvcmd").OnClick([this] {
        dialog_->Hide();
        events_.push_back("end of handler");
    });
    Then([this] { PressDialog(); });
    dialog_->Show(ShowMode::Modal);
    events_.push_back("returned");
    EXPECT_EQ(TakeEvents(), (Events{"end of handler", "returned"}));
}

TEST_P(ModalForms, RaiseLoadResizeAndActivateBeforeTheUserActs)
{
    dialog_->OnLoad(Note("load"));
    dialog_->OnResize(Note("resize"));
    dialog_->OnActivate(Note("activate"));
    Then([this] {
        PressDialog();
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"load", "resize", "activate", "dialog"}));
}

TEST_P(ModalForms, ReturnAtOnceWhereActivateHidesThem)
{
    dialog_->OnActivate([this] { dialog_->Hide(); });
    dialog_->Show(ShowMode::Modal);
    EXPECT_FALSE(dialog_->Visible());
    PressBelow();
    EXPECT_EQ(TakeEvents(), (Events{"below"}));
}

TEST_P(ModalForms, KeepTheUserOutOfTheFormsBelowButNotCode)
{
    Then([this] {
        PressBelow();
        User().Type(Get<KVTextBox>("kvtxt"), "x");
        User().Key(*form_, FormKey::Enter);
        User().CloseWindow(*form_);
        EXPECT_TRUE(form_->IsLoaded());
        EXPECT_EQ(TakeEvents(), Events());
        Get<KVTextBox>("kvtxt").Text("de código");
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(Get<KVTextBox>("kvtxt").Text(), "de código");
    PressBelow();
    EXPECT_EQ(TakeEvents(), (Events{"below"}));
}

TEST_P(ModalForms, Nest)
{
    const FormRef inner = MakeWindow("frmInterno");
    Bind<KVCommandButton>(dialog_, "kvcmd").OnClick([&] {
        inner->Show(ShowMode::Modal);
        events_.push_back("inner returned");
    });
    Then([this] {
        PressDialog();
        PressBelow();
    });
    Then([&] {
        PressDialog();
        PressBelow();
        events_.push_back("inside");
        inner->Hide();
    });
    Then([this] { dialog_->Hide(); });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"inside", "inner returned"}));
}

TEST_P(ModalForms, OpenOverAFormAndLetItsHandlerWait)
{
    Get<KVCommandButton>("kvcmd").OnClick([this] {
        dialog_->Show(ShowMode::Modal);
        events_.push_back("after " + Bind<KVTextBox>(dialog_, "kvtxt").Text());
    });
    Then([this] {
        User().Type(Bind<KVTextBox>(dialog_, "kvtxt"), "Rex");
        dialog_->Hide();
    });
    PressBelow();
    EXPECT_EQ(TakeEvents(), (Events{"after Rex"}));
}

TEST_P(ModalForms, LetAFormInThatIsShownOverThem)
{
    const FormRef plate = MakeWindow("frmPlaca");
    Bind<KVCommandButton>(plate, "kvcmd").OnClick(Note("plate"));
    Then([&] {
        plate->Show(ShowMode::Modeless);
        User().Press(Bind<KVCommandButton>(plate, "kvcmd"));
        plate->Hide();
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"plate"}));
}

TEST_P(ModalForms, AreShownAgain)
{
    for (int round = 0; round < 2; ++round) {
        Then([this] { dialog_->Hide(); });
        dialog_->Show(ShowMode::Modal);
        EXPECT_FALSE(dialog_->Visible());
    }
}

TEST_P(ModalForms, AreNotShownModallyTwiceAtATime)
{
    Then([this] {
        EXPECT_EQ(FailureOf([this] { dialog_->Show(ShowMode::Modal); }), 5);
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
}

TEST_P(ModalForms, MayBeDroppedInsideTheirOwnClick)
{
    Bind<KVCommandButton>(dialog_, "kvcmd").OnClick([this] {
        dialog_->Unload();
        dialog_.reset();
    });
    Then([this] { PressDialog(); });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(dialog_, nullptr);
}

TEST_P(ModalForms, StayWhereUnloadIsCancelled)
{
    dialog_->OnUnload([](bool& cancel) { cancel = true; });
    Then([this] { User().CloseWindow(*dialog_); });
    Then([this] {
        events_.push_back(dialog_->Visible() ? "stays" : "goes");
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"stays"}));
}

class MessageBoxes : public WidgetsTest {
protected:
    Reply Ask(MessageKind kind, std::optional<Reply> reply)
    {
        TheScript().replies.push_back(reply);
        return Kit().MessageBox(kind, "Excluir?\r\nTem certeza?", "Agenda");
    }
};
KOVA_ON_EVERY_BENCH(MessageBoxes);

TEST_P(MessageBoxes, OfAQuestionAnswerYesOrNo)
{
    EXPECT_EQ(Ask(MessageKind::Question, Reply::Yes), Reply::Yes);
    EXPECT_EQ(Ask(MessageKind::Question, Reply::No), Reply::No);
}

TEST_P(MessageBoxes, OfAQuestionAnswerNoWhereTheyAreClosed)
{
    EXPECT_EQ(Ask(MessageKind::Question, std::nullopt), Reply::No);
}

TEST_P(MessageBoxes, OfTheOtherKindsAnswerOk)
{
    for (const MessageKind kind : {MessageKind::Information, MessageKind::Critical, MessageKind::Plain}) {
        EXPECT_EQ(Ask(kind, Reply::Ok), Reply::Ok);
        EXPECT_EQ(Ask(kind, std::nullopt), Reply::Ok);
    }
}

TEST_P(MessageBoxes, SayWhatTheyWereGiven)
{
    Ask(MessageKind::Critical, Reply::Ok);
    EXPECT_EQ(TheScript().questions,
              (std::vector<Script::Question>{{MessageKind::Critical, "Excluir?\r\nTem certeza?", "Agenda"}}));
}

TEST_P(MessageBoxes, AreAnsweredInsideAHandler)
{
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    Get<KVCommandButton>("kvcmd").OnClick([this] {
        const bool yes = Ask(MessageKind::Question, Reply::Yes) == Reply::Yes;
        events_.push_back(yes ? "yes" : "no");
    });
    User().Press(Get<KVCommandButton>("kvcmd"));
    EXPECT_EQ(TakeEvents(), (Events{"yes"}));
}

TEST_P(ModalForms, VanishWithoutAHeightAndComeBackUnderTheSameShow)
{
    Then([this] {
        Widget& button = dialog_->Control("kvcmd");
        const Twips height = dialog_->Height();
        const Twips left = dialog_->Left();
        const Twips top = dialog_->Top();
        dialog_->Height(0);
        User().Settle();
        EXPECT_TRUE(dialog_->Visible());
        EXPECT_FALSE(User().IsOnScreen(button));
        PressDialog();
        PressBelow();
        EXPECT_EQ(TakeEvents(), Events());

        dialog_->Height(height);
        User().Settle();
        EXPECT_TRUE(User().IsOnScreen(button));
        EXPECT_EQ(dialog_->Left(), left);
        EXPECT_EQ(dialog_->Top(), top);
        PressBelow();
        PressDialog();
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"dialog"}));
}

TEST_P(ModalForms, ShowAnotherOneWhileTheyHaveNoHeight)
{
    const FormRef another = MakeWindow("frmOutro");
    Bind<KVCommandButton>(another, "kvcmd").OnClick(Note("another"));
    const auto pressAnother = [&] { User().Press(Bind<KVCommandButton>(another, "kvcmd")); };
    Then([&, this] {
        const Twips height = dialog_->Height();
        dialog_->Height(0);
        Then([&] {
            pressAnother();
            another->Hide();
        });
        another->Show(ShowMode::Modal);
        pressAnother();
        dialog_->Height(height);
        PressDialog();
        dialog_->Hide();
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"another", "dialog"}));
}

TEST_P(ModalForms, StayOffTheScreenWhereTheyAreHiddenWithoutAHeight)
{
    Then([this] {
        const Twips height = dialog_->Height();
        dialog_->Height(0);
        dialog_->Hide();
        dialog_->Height(height);
        User().Settle();
        EXPECT_FALSE(User().IsOnScreen(dialog_->Control("kvcmd")));
    });
    dialog_->Show(ShowMode::Modal);
    EXPECT_FALSE(dialog_->Visible());
}

} // namespace kova::conformance
