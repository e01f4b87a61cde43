#include "tests/unit/toolkits/fixture.hpp"
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
