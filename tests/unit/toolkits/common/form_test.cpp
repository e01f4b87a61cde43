#include "tests/unit/toolkits/common/fixture.hpp"

#include "toolkits/common/boxes/text_box.hpp"

namespace kova::headless {

class FormLife : public ToolkitTest {
protected:
    void Listen()
    {
        form_->OnLoad(Note("load"));
        form_->OnActivate(Note("activate"));
        form_->OnResize(Note("resize"));
        form_->OnUnload([this](bool&) { events_.push_back("unload"); });
    }
};

TEST_F(FormLife, RaisesLoadResizeAndActivateAtTheFirstShow)
{
    Make();
    Listen();
    EXPECT_FALSE(form_->IsLoaded());
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(TakeEvents(), (Events{"load", "resize", "activate"}));
    EXPECT_TRUE(form_->Visible());
    EXPECT_TRUE(form_->IsLoaded());
}

TEST_F(FormLife, LoadsOnceInItsLife)
{
    Make();
    Listen();
    form_->Load();
    form_->Load();
    EXPECT_EQ(TakeEvents(), (Events{"load"}));
    EXPECT_FALSE(form_->Visible());
    form_->Show(ShowMode::Modeless);
    form_->Hide();
    form_->Show(ShowMode::Modeless);
    EXPECT_EQ(TakeEvents(), (Events{"resize", "activate", "activate"}));
}

TEST_F(FormLife, RaisesResizeForAnotherSizeOnceShown)
{
    Make();
    Listen();
    form_->Width(5000);
    EXPECT_TRUE(TakeEvents().empty());
    form_->Show(ShowMode::Modeless);
    TakeEvents();
    form_->Width(6000);
    form_->Width(6000);
    form_->Height(7000);
    form_->Left(100);
    EXPECT_EQ(TakeEvents(), (Events{"resize", "resize"}));
    EXPECT_EQ(FailureOf([this] { form_->Height(-1); }), 380);
}

TEST_F(FormLife, HasAnInnerAreaInsideItsBorder)
{
    design_.width = 6000;
    design_.height = 5000;
    Make();
    EXPECT_EQ(form_->ScaleWidth(), 6000 - toolkit::FrameWidth);
    EXPECT_EQ(form_->ScaleHeight(), 5000 - toolkit::FrameHeight);
    design_.bordered = false;
    Make();
    EXPECT_EQ(form_->ScaleWidth(), 6000);
    EXPECT_EQ(form_->ScaleLeft() + form_->ScaleTop(), 0);
}

TEST_F(FormLife, FillsItsContainerAndFollowsIt)
{
    const Long container = toolkit_.CreateContainer(28800, 16200);
    Make();
    Listen();
    form_->SetParent(container);
    EXPECT_EQ(form_->ScaleWidth(), 28800);
    EXPECT_EQ(form_->Width(), 28800);
    form_->Show(ShowMode::Modeless);
    TakeEvents();
    toolkit_.ResizeContainer(container, 20000, 10000);
    EXPECT_EQ(TakeEvents(), (Events{"resize"}));
    EXPECT_EQ(form_->ScaleHeight(), 10000);
    EXPECT_EQ(FailureOf([this] { form_->SetParent(5); }), 5);
}

TEST_F(FormLife, StaysWhereItsHandlerKeepsIt)
{
    Open();
    form_->OnUnload([](bool& cancel) { cancel = true; });
    EXPECT_FALSE(form_->Unload());
    EXPECT_TRUE(form_->Visible());
    EXPECT_EQ(user_.CloseForm("frm"), "");
    EXPECT_TRUE(form_->IsLoaded());
}

TEST_F(FormLife, MayBeUnloadedAgainInsideItsOwnUnload)
{
    Open();
    Listen();
    form_->OnUnload([this](bool&) {
        events_.push_back("unload");
        form_->Unload();
    });
    EXPECT_TRUE(form_->Unload());
    EXPECT_TRUE(form_->Unload());
    EXPECT_EQ(TakeEvents(), (Events{"unload"}));
    EXPECT_FALSE(form_->IsLoaded());
    EXPECT_FALSE(form_->Visible());
    EXPECT_EQ(FailureOf([this] { form_->Show(ShowMode::Modeless); }), 5);
}

TEST_F(FormLife, RaisesNoEventOnceUnloadedAndKeepsItsWidgets)
{
    Has(WidgetKind::KVComboBox, "kvcmb");
    Open();
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("a");
    combo.OnClick(Note("click"));
    form_->Unload();
    combo.ListIndex(0);
    EXPECT_EQ(combo.Text(), "a");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(FormLife, MayBeUnloadedAndDroppedInsideAHandlerOfItsOwn)
{
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    std::string after;
    Get<KVCommandButton>("kvcmd").OnClick([this, &after, kept = std::string(100, 'x')] {
        form_->Unload();
        form_.reset();
        after = kept;
    });
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "");
    EXPECT_EQ(after.size(), 100U);
    EXPECT_EQ(toolkit_.FindForm("frm"), nullptr);
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "frm does not exist");
}

// What a library has given it must go before the library, and the form itself may have to wait.
TEST_F(FormLife, LetsGoOfItsHandlersAndItsOwnerAsSoonAsNobodyHoldsIt)
{
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    const auto held = std::make_shared<int>(1);
    form_->OnLoad([held] {});
    form_->OnUnload([held](bool&) {});
    Get<KVCommandButton>("kvcmd").OnClick([held] {});
    form_->Owner(std::shared_ptr<int>(new int(1), [held](const int* owner) { delete owner; }));
    const toolkit::EventScope event(toolkit_);
    form_.reset();
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(FormLife, MayBeDroppedInsideItsLostFocus)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    Get<KVCommandButton>("kvcmd").OnClick(Note("click"));
    Get<KVTextBox>("kvtxt").OnLostFocus([this] {
        form_->Unload();
        form_.reset();
    });
    user_.Click("frm", "kvcmd");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(FormLife, KeepsItsOwnerAliveDuringAnEvent)
{
    struct Logic {
        std::string state = "alive";
    };
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    auto logic = std::make_shared<Logic>();
    form_->Owner(logic);
    Get<KVCommandButton>("kvcmd").OnClick([this, &logic, raw = logic.get()] {
        logic.reset();
        events_.push_back(raw->state);
    });
    user_.Click("frm", "kvcmd");
    user_.Click("frm", "kvcmd");
    EXPECT_EQ(TakeEvents(), (Events{"alive"}));
}

TEST_F(FormLife, ReportsAFailureThatAHandlerOfTheUserLetsOut)
{
    failuresAllowed_ = true;
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    Get<KVCommandButton>("kvcmd").OnClick([] { throw Failure(429, "sem \"classe\""); });
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "");
    EXPECT_EQ(toolkit_.Log().back(), "unhandled 429 \"sem \\\"classe\\\"\"");
    EXPECT_FALSE(toolkit_.IsInsideEvent());
}

TEST_F(FormLife, PassesAFailureOfAHandlerToTheMemberThatRaisedIt)
{
    Has(WidgetKind::KVComboBox, "kvcmb");
    Open();
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("a");
    combo.OnClick([] { throw Failure(FailureNumber::NoObject); });
    EXPECT_EQ(FailureOf([&] { combo.ListIndex(0); }), 91);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_FALSE(toolkit_.IsInsideEvent());
}

TEST_F(FormLife, IsHiddenAgainWhereShowingFails)
{
    Make();
    form_->OnActivate([] { throw Failure(FailureNumber::NoObject); });
    EXPECT_EQ(FailureOf([this] { form_->Show(ShowMode::Modal); }), 91);
    EXPECT_FALSE(form_->Visible());
    EXPECT_EQ(toolkit_.ModalForm(), nullptr);
}

TEST_F(FormLife, RefusesADesignThatCannotBe)
{
    Has(WidgetKind::Label, "lbl");
    Has(WidgetKind::Label, "lbl");
    EXPECT_EQ(FailureOf([this] { Make(); }), 380);
    design_.controls.back().name = "lblInside";
    design_.controls.back().container = "picNone";
    EXPECT_EQ(FailureOf([this] { Make(); }), 380);
    design_.controls.back().container = "lbl";
    EXPECT_EQ(FailureOf([this] { Make(); }), 380);
}

TEST_F(FormLife, AddsAWidgetAtRunTimeHidden)
{
    Open();
    Widget& shape = form_->Add(WidgetKind::Shape, "lshpObj");
    EXPECT_EQ(shape.Name(), "lshpObj");
    EXPECT_FALSE(shape.Visible());
    EXPECT_EQ(form_->Controls().back(), &shape);
    EXPECT_EQ(FailureOf([this] { form_->Add(WidgetKind::Shape, "lshpObj"); }), 380);
}

TEST_F(FormLife, HasRoundedCornersByHandle)
{
    Has(WidgetKind::PictureBox, "pic");
    Make();
    const Long panel = Get<PictureBox>("pic").Handle();
    EXPECT_EQ(Get<PictureBox>("pic").Handle(), panel);
    EXPECT_NE(panel, form_->Handle());
    toolkit_.SetRoundRectRegion(panel, 30, 30);
    toolkit_.SetRoundRectRegion(99, 5, 5);
    EXPECT_EQ(toolkit_.CornersOf(panel)->ellipseWidth, 30);
    EXPECT_FALSE(toolkit_.CornersOf(form_->Handle()));
}

class Recorder : public toolkit::AccessObserver {
public:
    void Read(const toolkit::MemberAccess& access) override { Note("read ", access); }
    void Write(const toolkit::MemberAccess& access, const Value& value) override
    {
        Note("write ", access);
        seen.back() += " " + value.ToText();
        if (access.member == failing)
            throw Failure(FailureNumber::InvalidArgument);
    }
    void Call(const toolkit::MemberAccess& access, const Value&) override { Note("call ", access); }

    std::vector<std::string> seen;
    std::string failing;

private:
    void Note(const char* what, const toolkit::MemberAccess& access)
    {
        std::string line = what + std::string(access.form) + "." + std::string(access.control);
        if (access.controlIndex >= 0)
            line += "(" + std::to_string(access.controlIndex) + ")";
        line += "." + std::string(access.member);
        for (int at = 0; at < access.indexCount; ++at)
            line += "/" + std::to_string(access.indexes[static_cast<std::size_t>(at)]);
        seen.push_back(line);
    }
};

TEST_F(FormLife, ShowsEachAccessToItsObserverBeforeItActs)
{
    Has(WidgetKind::KVTextBox, "kvtxt").index = 2;
    Has(WidgetKind::MSFlexGrid, "msfg");
    Has(WidgetKind::KVComboBox, "kvcmb");
    Open();
    Get<KVComboBox>("kvcmb").AddItem("x");
    Recorder recorder;
    toolkit_.Observer(&recorder);
    Get<KVTextBox>("kvtxt", 2).Text("a");
    Get<KVTextBox>("kvtxt", 2).Text();
    Get<MSFlexGrid>("msfg").TextMatrix(1, 0, "b");
    Get<KVComboBox>("kvcmb").ItemData(0, 7);
    form_->Refresh();
    user_.Type("frm", "kvtxt", "z", 2);
    recorder.failing = "Text";
    EXPECT_EQ(FailureOf([this] { Get<KVTextBox>("kvtxt", 2).Text("c"); }), 5);
    toolkit_.Observer(nullptr);
    EXPECT_EQ(Get<KVTextBox>("kvtxt", 2).Text(), "z");
    EXPECT_EQ(
        recorder.seen,
        (Events{"write frm.kvtxt(2).Text a", "read frm.kvtxt(2).Text", "write frm.msfg.TextMatrix/1/0 b",
                "write frm.kvcmb.ItemData/0 7", "call frm..Refresh", "write frm.kvtxt(2).Text c"}));
}

} // namespace kova::headless
