#include "tests/conformance/widgets/suite.hpp"

namespace kova::conformance {

class PopupMenus : public WidgetsTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVCommandButton, "kvcmd");
        Entry("mnu", "");
        Entry("mnuDetalhar", "Detalhar", "mnu");
        Entry("mnuRegra", "-", "mnu");
        Entry("mnuAlterar", "Alterar", "mnu");
        Entry("mnuExcluir", "Excluir", "mnu").visible = false;
        Entry("mnuOutro", "");
        Entry("mnuDeOutro", "De outro", "mnuOutro");
        Open();
        for (const char* name : {"mnuDetalhar", "mnuAlterar", "mnuExcluir"})
            Get<Menu>(name).OnClick(Note(name));
    }

    ControlDesign& Entry(const char* name, const char* caption, const char* parent = "")
    {
        ControlDesign& design = Has(WidgetKind::Menu, name);
        design.caption = caption;
        design.container = parent;
        return design;
    }
    void PopUp() { form_->PopupMenu(Get<Menu>("mnu"), 300, 300); }
    void Choose(const char* name) { TheScript().menus.push_back(name ? &Get<Menu>(name) : nullptr); }
};
KOVA_ON_EVERY_BENCH(PopupMenus);

TEST_P(PopupMenus, ShowTheVisibleEntriesOfTheirParentInTheOrderOfTheDesign)
{
    Choose(nullptr);
    PopUp();
    Get<Menu>("mnuExcluir").Visible(true);
    Get<Menu>("mnuAlterar").Enabled(false);
    Get<Menu>("mnuDetalhar").Caption("Ver");
    Choose(nullptr);
    PopUp();
    EXPECT_EQ(TheScript().menusShown, (Events{"Detalhar|-|Alterar", "Ver|-|(Alterar)|Excluir"}));
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(PopupMenus, RaiseTheClickOfTheEntryChosenInsideTheCall)
{
    Choose("mnuAlterar");
    PopUp();
    EXPECT_EQ(TakeEvents(), (Events{"mnuAlterar"}));
    Choose("mnuDetalhar");
    PopUp();
    EXPECT_EQ(TakeEvents(), (Events{"mnuDetalhar"}));
}

TEST_P(PopupMenus, RaiseNothingForADisabledEntry)
{
    Get<Menu>("mnuAlterar").Enabled(false);
    Choose("mnuAlterar");
    PopUp();
    EXPECT_EQ(TakeEvents(), Events());
}

TEST_P(PopupMenus, ReturnAtOnceWhereThereIsNothingToShow)
{
    for (const char* name : {"mnuDetalhar", "mnuRegra", "mnuAlterar"})
        Get<Menu>(name).Visible(false);
    PopUp();
    EXPECT_EQ(TheScript().menusShown, Events());
}

TEST_P(PopupMenus, LetAFailureOfTheClickThroughToTheCaller)
{
    Get<Menu>("mnuAlterar").OnClick([] { throw Failure(FailureNumber::NoObject); });
    Choose("mnuAlterar");
    EXPECT_EQ(FailureOf([this] { PopUp(); }), 91);
}

TEST_P(PopupMenus, MayUnloadTheFormByAClick)
{
    Get<Menu>("mnuAlterar").OnClick([this] {
        form_->Unload();
        events_.push_back("unloaded");
    });
    Choose("mnuAlterar");
    PopUp();
    EXPECT_EQ(TakeEvents(), (Events{"unloaded"}));
    EXPECT_FALSE(form_->IsLoaded());
}

TEST_P(PopupMenus, OpenFromTheClickOfAButton)
{
    auto& button = Get<KVCommandButton>("kvcmd");
    button.OnClick([this] {
        PopUp();
        events_.push_back("returned");
    });
    Choose("mnuDetalhar");
    User().Press(button);
    EXPECT_EQ(TakeEvents(), (Events{"mnuDetalhar", "returned"}));
}

} // namespace kova::conformance
