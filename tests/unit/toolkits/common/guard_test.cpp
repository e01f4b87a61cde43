#include "tests/unit/toolkits/common/fixture.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/menu.hpp"

#include <set>

namespace kova::headless {

/// Of three controls the guard denies those that stand in `denied`, by name or by caption.
class Guards : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVTextBox, "kvtxt");
        ControlDesign& other = Has(WidgetKind::KVCommandButton, "kvcmdFechar");
        other.caption = "Fechar";
        ControlDesign& button = Has(WidgetKind::KVCommandButton, "kvcmdExcluir");
        button.caption = "&Excluir";
        button.shortcut = "F8";
        button.isDefault = true;
        Has(WidgetKind::Menu, "mnuPai").visible = false;
        for (const char* name : {"mnuUm", "mnuDois"}) {
            ControlDesign& entry = Has(WidgetKind::Menu, name);
            entry.container = "mnuPai";
            entry.caption = name;
        }
        Open();
        Get<KVCommandButton>("kvcmdExcluir").OnClick(Note("excluir"));
        Get<KVCommandButton>("kvcmdExcluir").OnLostFocus(Note("saiu"));
        Get<KVCommandButton>("kvcmdFechar").OnClick(Note("fechar"));
        Get<Menu>("mnuUm").OnClick(Note("um"));
        Get<Menu>("mnuDois").OnClick(Note("dois"));
        toolkit_.SetGuard([this](const toolkit::GuardedControl& control) {
            const bool isDenied = control.form == "frm"
                && (denied_.contains(std::string(control.control)) || denied_.contains(control.caption));
            return isDenied ? Text("Sem direito.") : Text();
        });
    }

    void Deny(std::set<std::string> names)
    {
        denied_ = std::move(names);
        toolkit_.LookAtGuard();
    }
    void PressEach(const char* button)
    {
        user_.Click("frm", button);
        user_.PressShortcut("frm", "F8");
        user_.PressKey("frm", toolkit::FormKey::Enter);
        ModelOf<toolkit::CommandButtonModel>(button).UserPresses();
        ModelOf<toolkit::CommandButtonModel>(button).UserPressesInPlace();
        ModelOf<toolkit::CommandButtonModel>(button).TakesEnter();
    }

    std::set<std::string> denied_;
};

TEST_F(Guards, LetEverythingBeUsedThatTheyDoNotDeny)
{
    PressEach("kvcmdExcluir");
    EXPECT_EQ(TakeEvents().size(), 6U);
    EXPECT_EQ(ModelOf<toolkit::CommandButtonModel>("kvcmdExcluir").Denial(), "");
}

TEST_F(Guards, HaveADeniedButtonDoNothingWhateverPressesIt)
{
    Deny({"kvcmdExcluir"});
    PressEach("kvcmdExcluir");
    EXPECT_EQ(TakeEvents(), Events());
    EXPECT_EQ(user_.Click("frm", "kvcmdExcluir"), "frm.kvcmdExcluir is denied: Sem direito.");
    EXPECT_EQ(user_.Click("frm", "kvcmdFechar"), "");
    EXPECT_EQ(TakeEvents(), Events{"fechar"});
}

TEST_F(Guards, LeaveWhatCodeReadsAndWritesAlone)
{
    Deny({"kvcmdExcluir"});
    auto& button = Get<KVCommandButton>("kvcmdExcluir");
    EXPECT_TRUE(button.Enabled());
    button.Enabled(false);
    EXPECT_FALSE(button.Enabled());
    button.Enabled(true);
    EXPECT_TRUE(button.Enabled());
    EXPECT_TRUE(button.Visible());
    EXPECT_EQ(button.ToolTipText(), "");
    Deny({});
    EXPECT_EQ(user_.Click("frm", "kvcmdExcluir"), "");
    EXPECT_EQ(TakeEvents(), Events{"excluir"});
}

TEST_F(Guards, KeepTheFocusFromADeniedControl)
{
    Get<KVCommandButton>("kvcmdExcluir").SetFocus();
    ASSERT_TRUE(ModelOf<toolkit::CommandButtonModel>("kvcmdExcluir").HasFocus());
    Deny({"kvcmdExcluir"});
    EXPECT_FALSE(ModelOf<toolkit::CommandButtonModel>("kvcmdExcluir").HasFocus());
    EXPECT_EQ(TakeEvents(), Events{"saiu"});
    Get<KVTextBox>("kvtxt").SetFocus();
    Get<KVCommandButton>("kvcmdExcluir").SetFocus();
    EXPECT_FALSE(ModelOf<toolkit::CommandButtonModel>("kvcmdExcluir").HasFocus());
    user_.PressKey("frm", toolkit::FormKey::BackTab);
    EXPECT_TRUE(ModelOf<toolkit::CommandButtonModel>("kvcmdFechar").HasFocus());
}

TEST_F(Guards, AreAskedWithTheCaptionAsItStands)
{
    Deny({"Alterar"});
    auto& button = Get<KVCommandButton>("kvcmdFechar");
    EXPECT_EQ(user_.Click("frm", "kvcmdFechar"), "");
    button.Caption("Alterar");
    EXPECT_EQ(user_.Click("frm", "kvcmdFechar"), "frm.kvcmdFechar is denied: Sem direito.");
    button.Caption("Cancelar");
    EXPECT_EQ(user_.Click("frm", "kvcmdFechar"), "");
    EXPECT_EQ(TakeEvents(), (Events{"fechar", "fechar"}));
}

TEST_F(Guards, HaveADeniedEntryOfAMenuNotChosen)
{
    Deny({"mnuDois"});
    EXPECT_TRUE(ModelOf<toolkit::MenuModel>("mnuUm").IsChoosable());
    EXPECT_FALSE(ModelOf<toolkit::MenuModel>("mnuDois").IsChoosable());
    toolkit_.Queue().QueueMenu("mnuUm");
    form_->PopupMenu(Get<Menu>("mnuPai"), 0, 0);
    EXPECT_EQ(TakeEvents(), Events{"um"});
}

TEST_F(Guards, LeaveADeniedButtonOutOfTheHelp)
{
    Deny({"kvcmdExcluir"});
    toolkit_.ClearLog();
    user_.PressShortcut("frm", "F1");
    for (const std::string& line : toolkit_.Log())
        EXPECT_EQ(line.find("F8"), std::string::npos) << line;
}

TEST_F(Guards, AreGoneWithoutOne)
{
    Deny({"kvcmdExcluir"});
    toolkit_.SetGuard({});
    EXPECT_EQ(user_.Click("frm", "kvcmdExcluir"), "");
    EXPECT_EQ(TakeEvents(), Events{"excluir"});
}

} // namespace kova::headless
