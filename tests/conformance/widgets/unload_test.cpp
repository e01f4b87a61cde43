// Unloading, and how long a form and its owner live.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class Unloading : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVCommandButton, "kvcmd");
        Has(WidgetKind::KVFind, "kvf");
        Has(WidgetKind::KVComboBox, "kvcmb");
        Has(WidgetKind::KVDTPicker, "kvdtp");
        Has(WidgetKind::MSFlexGrid, "msfg");
        Has(WidgetKind::CheckBox, "chk");
        Has(WidgetKind::KVNavigationBar, "kvnb");
        Has(WidgetKind::KVNumberBox, "kvnum");
        Open();
    }

    /// Drops the last reference to the form inside its own event.
    void Drop()
    {
        form_->Unload();
        form_.reset();
        events_.push_back("dropped");
    }
};
KOVA_ON_EVERY_BENCH(Unloading);

TEST_P(Unloading, RaisesUnloadOnceAndDropsAllHandlers)
{
    form_->OnUnload([this](bool&) { events_.push_back("unload"); });
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("um");
    combo.OnClick(Note("click"));
    EXPECT_TRUE(form_->Unload());
    EXPECT_EQ(TakeEvents(), (Events{"unload"}));
    EXPECT_FALSE(form_->IsLoaded() || form_->Visible());
    EXPECT_TRUE(form_->Unload());
    combo.ListIndex(0);
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(combo.Text(), "um");
    EXPECT_EQ(FailureOf([this] { form_->Show(ShowMode::Modeless); }), 5);
}

TEST_P(Unloading, IsCancelledByTheHandler)
{
    bool keep = true;
    form_->OnUnload([&](bool& cancel) { cancel = keep; });
    EXPECT_FALSE(form_->Unload());
    EXPECT_TRUE(form_->IsLoaded() && form_->Visible());
    User().CloseWindow(*form_);
    User().Settle();
    EXPECT_TRUE(form_->Visible());
    EXPECT_TRUE(User().IsOnScreen(form_->Control("kvcmd")));
    keep = false;
    EXPECT_TRUE(form_->Unload());
    EXPECT_FALSE(form_->Visible());
}

TEST_P(Unloading, IsWhatTheWindowsCloseButtonDoes)
{
    const FormRef window = MakeWindow("frmJanela");
    window->Show(ShowMode::Modeless);
    window->OnUnload([this](bool&) { events_.push_back("unload"); });
    User().CloseWindow(*window);
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"unload"}));
    EXPECT_FALSE(window->IsLoaded() || window->Visible());
}

TEST_P(Unloading, IsWhatTheEndOfItsContainerDoes)
{
    for (const bool closed : {true, false}) {
        const Long container = User().MakeContainer(9000, 7500);
        const FormRef inside = MakeWindow("frmDentro");
        inside->SetParent(container);
        inside->OnUnload([this](bool&) { events_.push_back("unload"); });
        inside->Show(ShowMode::Modeless);
        if (closed)
            User().CloseContainer(container);
        else
            User().DestroyContainer(container);
        User().Settle();
        EXPECT_EQ(TakeEvents(), (Events{"unload"})) << closed;
        EXPECT_FALSE(inside->IsLoaded() || inside->Visible()) << closed;
    }
    EXPECT_TRUE(form_->IsLoaded()) << "in another container";
}

TEST_P(Unloading, DoesNothingInsideItsOwnUnload)
{
    form_->OnUnload([this](bool&) {
        events_.push_back("unload");
        EXPECT_FALSE(form_->Unload());
    });
    form_->Unload();
    EXPECT_EQ(TakeEvents(), (Events{"unload"}));
}

TEST_P(Unloading, InsideTheClickOfAButtonIsClean)
{
    Get<KVCommandButton>("kvcmd").OnClick([this] { Drop(); });
    User().Press(Get<KVCommandButton>("kvcmd"));
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideTheSpaceBarsClickIsClean)
{
    Get<KVCommandButton>("kvcmd").OnClick([this] { Drop(); });
    User().PressBySpace(Get<KVCommandButton>("kvcmd"));
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideTheEventsOfAFindBoxIsClean)
{
    auto& find = Get<KVFind>("kvf");
    find.OnClick([this] { Drop(); });
    User().PressFind(find);
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideTheChoiceOfAComboIsClean)
{
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("um");
    combo.OnClick([this] { Drop(); });
    User().Choose(combo, 0);
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideADropDownIsClean)
{
    auto& combo = Get<KVComboBox>("kvcmb");
    combo.AddItem("um");
    combo.OnDropDown([this] {
        form_->Unload();
        events_.push_back("unloaded");
    });
    EXPECT_EQ(User().LookAtList(combo), Events());
    EXPECT_EQ(TakeEvents(), (Events{"unloaded"}));
}

TEST_P(Unloading, InsideTheChangeOfADateIsClean)
{
    auto& date = Get<KVDTPicker>("kvdtp");
    date.OnChange([this] { Drop(); });
    User().Type(date, "20112026");
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideThePickOfADayIsClean)
{
    auto& date = Get<KVDTPicker>("kvdtp");
    date.OnChange([this] { Drop(); });
    User().Pick(date, {2026, 11, 23});
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideAClickOfTheGridIsClean)
{
    auto& grid = Get<MSFlexGrid>("msfg");
    grid.OnClick([this] { Drop(); });
    User().ClickAt(grid, 1050, 300);
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideTheHeaderClickAndTheHoverOfTheGridIsClean)
{
    auto& grid = Get<MSFlexGrid>("msfg");
    grid.OnMouseMove([this](Integer, Integer, Twips, Twips) {
        if (form_)
            Drop();
    });
    User().HoverAt(grid, 1200, 150);
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideASelChangeByKeyIsClean)
{
    auto& grid = Get<MSFlexGrid>("msfg");
    grid.Rows(5);
    grid.OnSelChange([this] { Drop(); });
    User().GridKey(grid, GridKey::Down);
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideTheOtherPressesIsClean)
{
    auto& bar = Get<KVNavigationBar>("kvnb");
    bar.LastRecord(15);
    bar.RecordCount(30);
    bar.Refresh();
    bar.OnClick([this](Integer&) { Drop(); });
    User().PressBar(bar, 3);
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideACheckBoxIsClean)
{
    Get<CheckBox>("chk").OnClick([this] { Drop(); });
    User().Press(Get<CheckBox>("chk"));
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideAKeyPressIsClean)
{
    auto& number = Get<KVNumberBox>("kvnum");
    number.OnKeyPress([this](Integer&) {
        if (form_)
            Drop();
    });
    User().Focus(number);
    User().TypeOn(number, "1");
    User().Settle();
    EXPECT_EQ(TakeEvents(), (Events{"dropped"}));
}

TEST_P(Unloading, InsideResizeAndActivateIsClean)
{
    form_ = Kit().CreateForm(design_);
    form_->OnActivate([this] { form_->Unload(); });
    form_->Show(ShowMode::Modeless);
    EXPECT_FALSE(form_->Visible() || form_->IsLoaded());
    form_ = Kit().CreateForm(design_);
    form_->OnLoad([this] { form_->Unload(); });
    form_->OnActivate(Note("activate"));
    form_->Show(ShowMode::Modeless);
    EXPECT_FALSE(form_->Visible());
    EXPECT_EQ(TakeEvents(), Events());
}

class Owners : public WidgetsTest {
protected:
    struct Owner {
        Events* events;
        ~Owner() { events->push_back("owner gone"); }
    };

    void SetUp() override
    {
        Has(WidgetKind::KVCommandButton, "kvcmd");
        Open();
        owner_ = std::make_shared<Owner>(Owner{&events_});
        TakeEvents();
        form_->Owner(owner_);
    }

    std::shared_ptr<Owner> owner_;
};
KOVA_ON_EVERY_BENCH(Owners);

TEST_P(Owners, AreKeptAliveWhileTheirProceduresRun)
{
    Get<KVCommandButton>("kvcmd").OnClick([this] {
        owner_.reset();
        events_.push_back("still here");
    });
    User().Press(Get<KVCommandButton>("kvcmd"));
    EXPECT_EQ(TakeEvents(), (Events{"still here", "owner gone"}));
}

TEST_P(Owners, HearNothingOnceTheyAreGone)
{
    Get<KVCommandButton>("kvcmd").OnClick(Note("click"));
    owner_.reset();
    TakeEvents();
    User().Press(Get<KVCommandButton>("kvcmd"));
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(Owners, AreNotKeptAliveByTheForm)
{
    const std::weak_ptr<Owner> watched = owner_;
    owner_.reset();
    EXPECT_TRUE(watched.expired());
    TakeEvents();
}

} // namespace kova::conformance
