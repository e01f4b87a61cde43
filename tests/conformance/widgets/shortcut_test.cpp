// Keys that press a button or enter a box from anywhere in the form.

#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class Shortcuts : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::MSFlexGrid, "msfg");
        Has(WidgetKind::KVDTPicker, "kvdtp");
        Has(WidgetKind::KVCommandButton, "kvcmdDetalhar").shortcut = "F4";
        Has(WidgetKind::KVCommandButton, "kvcmdAtendido").shortcut = "Ctrl+2";
        Has(WidgetKind::KVCommandButton, "kvcmdAnterior").shortcut = "Alt+Left";
        Has(WidgetKind::KVFind, "kvfnd").shortcut = "F3";
        for (const int index : {1, 2}) {
            ControlDesign& option = Has(WidgetKind::OptionButton, "opt");
            option.index = index;
            option.shortcut = index == 2 ? "Alt+L" : "Alt+D";
        }
        Open();
        Get<OptionButton>("opt", 2).OnClick([this](Integer) { events_.push_back("option"); });
        for (const char* name : {"kvcmdDetalhar", "kvcmdAtendido", "kvcmdAnterior"})
            Get<KVCommandButton>(name).OnClick(Note(name));
    }
};
KOVA_ON_EVERY_BENCH(Shortcuts);

TEST_P(Shortcuts, PressTheirButtonFromAnywhere)
{
    User().Shortcut(*form_, "F4");
    User().Shortcut(*form_, "Ctrl+2");
    User().Shortcut(*form_, "Alt+Left");
    EXPECT_EQ(TakeEvents(), (Events{"kvcmdDetalhar", "kvcmdAtendido", "kvcmdAnterior"}));
}

TEST_P(Shortcuts, DoNothingOnAHiddenOrDisabledButton)
{
    Get<KVCommandButton>("kvcmdDetalhar").Visible(false);
    Get<KVCommandButton>("kvcmdAtendido").Enabled(false);
    User().Shortcut(*form_, "F4");
    User().Shortcut(*form_, "Ctrl+2");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_P(Shortcuts, DoNothingInADisabledForm)
{
    form_->Enabled(false);
    User().Shortcut(*form_, "F4");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_P(Shortcuts, LeaveTheFocusWhereItWas)
{
    Get<MSFlexGrid>("msfg").SetFocus();
    User().Shortcut(*form_, "F4");
    EXPECT_EQ(Focused(), "msfg");
}

TEST_P(Shortcuts, LeaveTheFocusWhereTheButtonsHandlerPutIt)
{
    Get<KVCommandButton>("kvcmdDetalhar").OnClick([this] { Get<KVFind>("kvfnd").SetFocus(); });
    User().Shortcut(*form_, "F4");
    EXPECT_EQ(Focused(), "kvfnd");
}

TEST_P(Shortcuts, LetTheBoxThatIsLeftRaiseItsLostFocusFirst)
{
    auto& date = Get<KVDTPicker>("kvdtp");
    date.SetFocus();
    date.OnLostFocus(Note("lost"));
    User().Shortcut(*form_, "F4");
    EXPECT_EQ(TakeEvents(), (Events{"lost", "kvcmdDetalhar"}));
}

TEST_P(Shortcuts, GoBackToAWidgetThatTheHandlerDisabledForAWhile)
{
    auto& grid = Get<MSFlexGrid>("msfg");
    grid.SetFocus();
    Get<KVCommandButton>("kvcmdDetalhar").OnClick([&grid] {
        grid.Enabled(false);
        grid.Enabled(true);
    });
    User().Shortcut(*form_, "F4");
    EXPECT_EQ(Focused(), "msfg");
}

TEST_P(Shortcuts, EnterABox)
{
    User().Shortcut(*form_, "F3");
    EXPECT_EQ(Focused(), "kvfnd");
}

TEST_P(Shortcuts, ChooseAnOption)
{
    User().Shortcut(*form_, "Alt+L");
    EXPECT_TRUE(Get<OptionButton>("opt", 2).Value());
    EXPECT_EQ(TakeEvents(), (Events{"option"}));
}

TEST_P(Shortcuts, SurviveAHandlerThatUnloadsTheForm)
{
    Get<KVCommandButton>("kvcmdDetalhar").OnClick([this] { form_->Unload(); });
    User().Shortcut(*form_, "F4");
    EXPECT_FALSE(form_->IsLoaded());
}

} // namespace kova::conformance
