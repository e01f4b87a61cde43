#include "tests/unit/toolkits/common/fixture.hpp"
#include "toolkits/common/shortcuts.hpp"

namespace kova::headless {

class KeyHelp : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::MSFlexGrid, "msfg");
        ControlDesign& named = Has(WidgetKind::KVCommandButton, "kvcmdUm");
        named.accessibleName = "Detalhar";
        named.toolTipText = "Outra dica";
        named.shortcut = "F4";
        ControlDesign& tipped = Has(WidgetKind::KVCommandButton, "kvcmdDois");
        tipped.toolTipText = "Dia anterior";
        tipped.caption = "<";
        tipped.shortcut = "Alt+Left";
        ControlDesign& captioned = Has(WidgetKind::KVCommandButton, "kvcmdTres");
        captioned.caption = "   Adicionar";
        captioned.shortcut = "Ins";
        Has(WidgetKind::KVCommandButton, "kvcmdSemTecla").caption = "Sem tecla";
    }

    Events Help()
    {
        toolkit_.ClearLog();
        user_.PressShortcut("frm", "F1");
        return toolkit_.Log();
    }
};

TEST_F(KeyHelp, ListsTheKeysInTheOrderOfTheDesignAndWhatTheyDo)
{
    Open();
    toolkit_.ClearLog();
    EXPECT_EQ(user_.PressShortcut("frm", "F1"), "");
    EXPECT_EQ(toolkit_.Log(),
              (Events{"help frm", "  F4: Detalhar", "  Alt+←: Dia anterior", "  Insert: Adicionar",
                      "  ↑ ↓: Ir de linha em linha na lista", "  Tab: Ir para o próximo campo",
                      "  F1: Mostrar esta ajuda"}));
}

TEST_F(KeyHelp, LeavesOutWhatCannotBePressedNow)
{
    Open();
    Get<KVCommandButton>("kvcmdUm").Visible(false);
    Get<KVCommandButton>("kvcmdDois").Enabled(false);
    Get<MSFlexGrid>("msfg").Visible(false);
    EXPECT_EQ(Help(),
              (Events{"help frm", "  Insert: Adicionar", "  Tab: Ir para o próximo campo",
                      "  F1: Mostrar esta ajuda"}));
}

TEST_F(KeyHelp, SaysTheCaptionThatAButtonShowsNow)
{
    design_.controls.erase(design_.controls.begin());
    Open();
    Get<KVCommandButton>("kvcmdTres").Caption(" Fechar");
    Get<KVCommandButton>("kvcmdDois").ToolTipText("Ontem");
    EXPECT_EQ(Help(),
              (Events{"help frm", "  F4: Detalhar", "  Alt+←: Ontem", "  Insert: Fechar",
                      "  Tab: Ir para o próximo campo", "  F1: Mostrar esta ajuda"}));
}

TEST_F(KeyHelp, TellsTheKeysOfAPickerThatHasNoOthers)
{
    design_.controls.clear();
    Has(WidgetKind::MSFlexGrid, "msfg");
    ControlDesign& close = Has(WidgetKind::KVCommandButton, "kvcmdFechar");
    close.caption = "Fechar";
    close.isCancel = true;
    Open();
    Get<MSFlexGrid>("msfg").OnClick([] {});
    EXPECT_EQ(Help(),
              (Events{"help frm", "  ↑ ↓: Ir de linha em linha na lista", "  Enter: Escolher a linha",
                      "  Esc: Fechar", "  Tab: Ir para o próximo campo", "  F1: Mostrar esta ajuda"}));
    Get<MSFlexGrid>("msfg").Rows(1);
    EXPECT_EQ(
        Help(),
        (Events{"help frm", "  Esc: Fechar", "  Tab: Ir para o próximo campo", "  F1: Mostrar esta ajuda"}));
}

TEST_F(KeyHelp, TellsThePagesThatThereAre)
{
    design_.controls.clear();
    ControlDesign& grid = Has(WidgetKind::MSFlexGrid, "msfg");
    grid.pageBar = "kvnb";
    grid.rowButton = "kvcmd";
    Has(WidgetKind::KVNavigationBar, "kvnb");
    Has(WidgetKind::KVCommandButton, "kvcmd").accessibleName = "Detalhar";
    Has(WidgetKind::KVDTPicker, "kvdtp").repeatKey = "F5";
    Open();
    Get<KVDTPicker>("kvdtp").Text("18/03/2026");
    auto& bar = Get<KVNavigationBar>("kvnb");
    bar.FirstRecord(1);
    bar.LastRecord(10);
    bar.RecordCount(11);
    bar.Refresh();
    EXPECT_EQ(
        Help(),
        (Events{"help frm", "  ↑ ↓: Ir de linha em linha na lista", "  Enter: Detalhar a linha",
                "  PgDn: Na última linha, ir para a próxima página", "  Ctrl+End: Ir para a última página",
                "  F5: Atualizar a lista", "  Tab: Ir para o próximo campo", "  F1: Mostrar esta ajuda"}));
    bar.FirstRecord(11);
    bar.LastRecord(11);
    bar.Refresh();
    const Events help = Help();
    EXPECT_EQ(help[3], "  PgUp: Na primeira linha, ir para a página anterior");
    EXPECT_EQ(help[4], "  Ctrl+Home: Ir para a primeira página");
    EXPECT_EQ(help[5], "  F5: Atualizar a lista");
}

TEST_F(KeyHelp, TellsTheButtonsThatEnterAndEscapePress)
{
    design_.controls.clear();
    ControlDesign& save = Has(WidgetKind::KVCommandButton, "kvcmdSalvar");
    save.caption = "Salvar";
    save.isDefault = true;
    ControlDesign& cancel = Has(WidgetKind::KVCommandButton, "kvcmdCancelar");
    cancel.caption = "Cancelar";
    cancel.isCancel = true;
    Open();
    EXPECT_EQ(Help(),
              (Events{"help frm", "  Enter: Salvar", "  Esc: Cancelar", "  Tab: Ir para o próximo campo",
                      "  F1: Mostrar esta ajuda"}));
}

TEST_F(KeyHelp, IsNotThereOnAFormWithoutKeys)
{
    design_.controls.clear();
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    EXPECT_EQ(user_.PressShortcut("frm", "F1"), "frm has no key F1");
}

TEST_F(KeyHelp, SaysThatAKeyMeansNothing)
{
    Open();
    EXPECT_EQ(user_.PressShortcut("frm", "F12"), "frm has no key F12");
}

} // namespace kova::headless
