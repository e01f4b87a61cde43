#include "tests/unit/toolkits/common/fixture.hpp"
#include "toolkits/common/menu.hpp"

#include <limits>

namespace kova::headless {

class ModalForms : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVCommandButton, "kvcmd");
        Open();
        FormDesign design;
        design.name = "frmModal";
        design.controls = design_.controls;
        modal_ = toolkit_.CreateForm(design);
        toolkit_.ClearLog();
    }

    FormRef modal_;
};

TEST_F(ModalForms, KeepTheUserOutOfTheFormsBelow)
{
    toolkit_.Queue().QueueAction([this] {
        EXPECT_EQ(user_.Click("frm", "kvcmd"), "frm is under a modal form");
        EXPECT_EQ(user_.CloseForm("frm"), "frm is under a modal form");
        EXPECT_EQ(user_.Click("frmModal", "kvcmd"), "");
        modal_->Hide();
    });
    modal_->Show(ShowMode::Modal);
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "");
    EXPECT_EQ(toolkit_.Log(), (Events{"show frmModal modal", "hide frmModal"}));
}

TEST_F(ModalForms, LetTheUserIntoAFormShownAboveThem)
{
    FormDesign design;
    design.name = "frmAbove";
    design.controls = design_.controls;
    const FormRef above = toolkit_.CreateForm(design);
    toolkit_.Queue().QueueAction([&] {
        above->Show(ShowMode::Modeless);
        EXPECT_EQ(user_.Click("frmAbove", "kvcmd"), "");
        modal_->Hide();
    });
    modal_->Show(ShowMode::Modal);
}

TEST_F(ModalForms, ReturnAfterTheHandlerThatHidesThem)
{
    Bind<KVCommandButton>(modal_, "kvcmd").OnClick([this] {
        modal_->Hide();
        events_.push_back("handler ends");
    });
    toolkit_.Queue().QueueAction([this] { user_.Click("frmModal", "kvcmd"); });
    modal_->Show(ShowMode::Modal);
    events_.push_back("show returns");
    EXPECT_EQ(TakeEvents(), (Events{"handler ends", "show returns"}));
    EXPECT_TRUE(modal_->IsLoaded());
}

TEST_F(ModalForms, ReturnAtOnceWhereTheyAreHiddenWhileTheyAppear)
{
    modal_->OnActivate([this] { modal_->Hide(); });
    modal_->Show(ShowMode::Modal);
    EXPECT_FALSE(modal_->Visible());
    EXPECT_EQ(toolkit_.ModalForm(), nullptr);
}

TEST_F(ModalForms, MayUnloadThemselvesWhileTheyLoad)
{
    modal_->OnLoad([this] { modal_->Unload(); });
    modal_->Show(ShowMode::Modal);
    EXPECT_FALSE(modal_->IsLoaded());
}

TEST_F(ModalForms, MayBeDroppedWhileTheyAreShown)
{
    toolkit_.Queue().QueueAction([this] {
        modal_->Unload();
        modal_.reset();
    });
    Form& shown = *modal_;
    shown.Show(ShowMode::Modal);
    EXPECT_EQ(toolkit_.FindForm("frmModal"), nullptr);
}

TEST_F(ModalForms, MayBeShownOnTopOfEachOther)
{
    FormDesign design;
    design.name = "frmInner";
    const FormRef inner = toolkit_.CreateForm(design);
    Bind<KVCommandButton>(modal_, "kvcmd").OnClick([&] {
        inner->Show(ShowMode::Modal);
        events_.push_back("inner returned");
        modal_->Hide();
    });
    toolkit_.Queue().QueueAction([this] { user_.Click("frmModal", "kvcmd"); });
    toolkit_.Queue().QueueAction([&] {
        EXPECT_EQ(user_.Click("frmModal", "kvcmd"), "frmModal is under a modal form");
        EXPECT_EQ(FailureOf([this] { modal_->Show(ShowMode::Modal); }), 5);
        inner->Hide();
    });
    modal_->Show(ShowMode::Modal);
    EXPECT_EQ(TakeEvents(), (Events{"inner returned"}));
}

TEST_F(ModalForms, AreClosedByTheirOwnCloseButton)
{
    toolkit_.Queue().QueueAction([this] { user_.CloseForm("frmModal"); });
    modal_->Show(ShowMode::Modal);
    EXPECT_FALSE(modal_->IsLoaded());
}

TEST(QueueDriver, ClosesAModalFormWithoutActionsAndSaysSo)
{
    HeadlessToolkit toolkit;
    FormDesign design;
    design.name = "frm";
    const FormRef form = toolkit.CreateForm(design);
    form->Show(ShowMode::Modal);
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(toolkit.Queue().Unexpected(), (std::vector<std::string>{"modal form frm is still open"}));
}

TEST(QueueDriver, RecordsAQuestionThatNobodyExpected)
{
    HeadlessToolkit toolkit;
    EXPECT_EQ(toolkit.MessageBox(MessageKind::Question, "Sim?", "Kova"), Reply::No);
    EXPECT_EQ(toolkit.Queue().Unexpected().size(), 1U);
}

TEST_F(ModalForms, WaitWhileAMessageBoxIsOpen)
{
    class Asker : public Driver {
    public:
        explicit Asker(User& user) : user_(user) { }
        void RunModal(toolkit::FormModel&) override { }
        Reply Answer(MessageKind, const Text&, const Text&) override
        {
            refusal = user_.Click("frm", "kvcmd");
            return Reply::Yes;
        }
        toolkit::MenuModel* ChooseMenu(toolkit::MenuModel&, const std::vector<toolkit::MenuModel*>&) override
        {
            return nullptr;
        }
        void DuringPause(Double) override { }
        std::string refusal;

    private:
        User& user_;
    } asker(user_);
    toolkit_.SetDriver(&asker);
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Question, "a\r\n\"b\"", "Kova"), Reply::Yes);
    EXPECT_EQ(asker.refusal, "frm is behind a message box or menu");
    EXPECT_EQ(toolkit_.Log().back(), "box question \"Kova\" \"a\\r\\n\\\"b\\\"\" -> yes");
}

TEST_F(ModalForms, AnswerOkToABoxWithOneButton)
{
    toolkit_.Queue().QueueReply(Reply::Yes);
    EXPECT_EQ(toolkit_.MessageBox(MessageKind::Information, "x", "Kova"), Reply::Ok);
}

TEST_F(ModalForms, RefuseTheUserWithAReason)
{
    EXPECT_EQ(user_.Click("frmNone", "kvcmd"), "frmNone does not exist");
    EXPECT_EQ(user_.Click("frm", "kvcmdNone"), "frm.kvcmdNone does not exist");
    Get<KVCommandButton>("kvcmd").Enabled(false);
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "frm.kvcmd is disabled");
    Get<KVCommandButton>("kvcmd").Visible(false);
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "frm.kvcmd is not visible");
    form_->Enabled(false);
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "frm is disabled");
    form_->Hide();
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "frm is not visible");
}

class Pauses : public ToolkitTest {
protected:
    void Pause(Double seconds)
    {
        toolkit_.PauseBegins(seconds);
        const Double start = toolkit_.Clock().Timer();
        int turns = 0;
        while (toolkit_.Clock().Timer() - start < seconds && ++turns < 10)
            toolkit_.ProcessPendingEvents();
        EXPECT_LT(turns, 10);
        toolkit_.PauseEnds();
    }
};

TEST_F(Pauses, MoveTheFrozenClock)
{
    Pause(1);
    EXPECT_EQ(toolkit_.Clock().Now(), (DateTime{{2026, 11, 20}, {10, 15, 1}}));
    EXPECT_EQ(toolkit_.Log().back(), "pause 1");
}

TEST_F(Pauses, EndAcrossMidnight)
{
    toolkit_.Clock().Set({{2026, 12, 31}, {23, 59, 59}});
    Pause(1);
    EXPECT_EQ(toolkit_.Clock().Now(), (DateTime{{2027, 1, 1}, {0, 0, 0}}));
    EXPECT_EQ(toolkit_.Clock().Timer(), 0);
}

TEST_F(Pauses, LetTheUserActOnce)
{
    toolkit_.Queue().QueueDuringPause([this] { events_.push_back("acted"); });
    Pause(1);
    Pause(1);
    EXPECT_EQ(TakeEvents(), (Events{"acted"}));
}

TEST_F(Pauses, AreTheOnlyTimeThatPendingEventsTake)
{
    toolkit_.ProcessPendingEvents();
    EXPECT_EQ(toolkit_.Clock().Timer(), 10 * 3600 + 15 * 60);
    toolkit_.Clock().Advance(90.5);
    EXPECT_EQ(toolkit_.Clock().Timer(), 10 * 3600 + 15 * 60 + 90.5);
}

TEST_F(Pauses, EndWithTheCalendarHoweverLongTheyAre)
{
    constexpr DateTime end{{9999, 12, 31}, {23, 59, 59}};
    for (const Double seconds : {1e13, 1e300, std::numeric_limits<Double>::infinity()}) {
        toolkit_.Clock().Set({{2026, 11, 20}, {10, 15, 0}});
        toolkit_.Clock().Advance(seconds);
        EXPECT_EQ(toolkit_.Clock().Now(), end) << seconds;
        EXPECT_LT(toolkit_.Clock().Timer(), 24 * 3600) << seconds;
        toolkit_.Clock().Advance(1);
        EXPECT_EQ(toolkit_.Clock().Now(), end) << seconds;
    }
}

TEST_F(Pauses, KnowTheWidthOfTheScreen)
{
    toolkit_.ScreenWidthInPixels(1024);
    EXPECT_EQ(toolkit_.ScreenWidth() / toolkit_.TwipsPerPixelX(), 1024);
}

} // namespace kova::headless
