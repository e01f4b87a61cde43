// What a person does by the names of controls, where no test of a control asks for it.

#include "tests/unit/toolkits/common/fixture.hpp"

namespace kova::headless {

class UserOfAMenu : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::Menu, "mnu").visible = false;
        Has(WidgetKind::Menu, "mnuUm").container = "mnu";
        Has(WidgetKind::Menu, "mnuDois").container = "mnu";
        Open();
        Get<Menu>("mnuUm").OnClick(Note("um"));
    }
};

TEST_F(UserOfAMenu, ChoosesAnEntryOfAMenuThatIsNotOpen)
{
    EXPECT_EQ(user_.PickEntry("frm", "mnuUm"), "");
    EXPECT_EQ(TakeEvents(), (Events{"um"}));
}

TEST_F(UserOfAMenu, ChoosesNoneThatTheMenuWouldNotOffer)
{
    Get<Menu>("mnuUm").Enabled(false);
    EXPECT_EQ(user_.PickEntry("frm", "mnuUm"), "frm.mnuUm cannot be chosen");
    EXPECT_EQ(user_.PickEntry("frm", "mnuTres"), "frm.mnuTres is no menu entry that exists");
    EXPECT_EQ(user_.PickEntry("frmOutro", "mnuUm"), "frmOutro.mnuUm is no menu entry that exists");
    form_->Hide();
    EXPECT_EQ(user_.PickEntry("frm", "mnuDois"), "frm is not visible");
    EXPECT_EQ(TakeEvents(), Events{});
}

class UserOfACombo : public ToolkitTest { };

TEST_F(UserOfACombo, ChoosesTheFirstRowOfANumber)
{
    Has(WidgetKind::KVComboBox, "kvcmb");
    Open();
    auto& combo = Get<KVComboBox>("kvcmb");
    for (const Long data : {3, 8, 8}) {
        combo.AddItem("Linha");
        combo.ItemData(combo.NewIndex(), data);
    }
    combo.OnClick(Note("click"));
    EXPECT_EQ(user_.ChooseData("frm", "kvcmb", 8), "");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(user_.ChooseData("frm", "kvcmb", 9), "frm.kvcmb has no row with number 9");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

} // namespace kova::headless
