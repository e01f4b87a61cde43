#include "tests/unit/toolkits/common/fixture.hpp"

#include "toolkits/common/boxes/combo_box.hpp"

namespace kova::headless {

class ComboBox : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVComboBox, "kvcmb");
        Has(WidgetKind::KVTextBox, "kvtxt");
        Open();
        combo_ = &Get<KVComboBox>("kvcmb");
        for (const char* row : {"Agendado", "Atendido", "Cancelado"})
            combo_->AddItem(row);
        combo_->OnClick([this] { events_.push_back("click " + std::to_string(combo_->ListIndex())); });
        combo_->OnDropDown(Note("drop down"));
        combo_->OnLostFocus(Note("lost focus"));
    }

    KVComboBox* combo_ = nullptr;
};

TEST_F(ComboBox, RaisesClickOnEveryWriteOfListIndex)
{
    combo_->ListIndex(1);
    combo_->ListIndex(1);
    combo_->ListIndex(-1);
    EXPECT_EQ(TakeEvents(), (Events{"click 1", "click 1", "click -1"}));
}

TEST_F(ComboBox, ShowsTheTextOfTheSelectedRow)
{
    combo_->ListIndex(2);
    EXPECT_EQ(combo_->Text(), "Cancelado");
    combo_->ListIndex(-1);
    EXPECT_EQ(combo_->Text(), "");
}

TEST_F(ComboBox, SelectsTheFirstRowWithAWrittenText)
{
    combo_->AddItem("Atendido");
    combo_->Text("Atendido");
    EXPECT_EQ(combo_->ListIndex(), 1);
    EXPECT_EQ(TakeEvents(), (Events{"click 1"}));
}

TEST_F(ComboBox, KeepsATextThatNoRowHoldsWithoutSelectionOrEvent)
{
    combo_->ListIndex(0);
    TakeEvents();
    combo_->Text("Outro");
    EXPECT_EQ(combo_->Text(), "Outro");
    EXPECT_EQ(combo_->ListIndex(), -1);
    combo_->Text("");
    EXPECT_EQ(combo_->Text(), "");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(ComboBox, RefusesAListIndexOutsideItsRows)
{
    combo_->ListIndex(1);
    EXPECT_EQ(FailureOf([this] { combo_->ListIndex(3); }), 380);
    EXPECT_EQ(FailureOf([this] { combo_->ListIndex(-2); }), 380);
    EXPECT_EQ(combo_->ListIndex(), 1);
}

TEST_F(ComboBox, KeepsANumberForEachRowUntilClear)
{
    EXPECT_EQ(combo_->ItemData(0), 0);
    combo_->ItemData(combo_->NewIndex(), 77);
    EXPECT_EQ(combo_->ItemData(2), 77);
    EXPECT_EQ(FailureOf([this] { combo_->ItemData(3); }), 381);
    EXPECT_EQ(FailureOf([this] { combo_->ItemData(-1, 5); }), 381);
    combo_->Clear();
    EXPECT_EQ(FailureOf([this] { combo_->ItemData(0); }), 381);
}

TEST_F(ComboBox, ClearsWithoutAnEvent)
{
    combo_->ListIndex(1);
    TakeEvents();
    combo_->Clear();
    EXPECT_EQ(combo_->ListCount(), 0);
    EXPECT_EQ(combo_->ListIndex(), -1);
    EXPECT_EQ(combo_->NewIndex(), -1);
    EXPECT_EQ(combo_->Text(), "");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(ComboBox, AddsRowsWithoutEventAndKeepsTheSelection)
{
    combo_->ListIndex(0);
    TakeEvents();
    combo_->AddItem("Novo");
    EXPECT_EQ(combo_->NewIndex(), 3);
    EXPECT_EQ(combo_->ListIndex(), 0);
    EXPECT_EQ(combo_->List(3), "Novo");
    EXPECT_EQ(combo_->List(4), "");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(ComboBox, OpensBeforeTheUserChooses)
{
    EXPECT_EQ(user_.Choose("frm", "kvcmb", 2), "");
    EXPECT_EQ(TakeEvents(), (Events{"drop down", "click 2"}));
}

TEST_F(ComboBox, RaisesClickAlsoForTheRowAlreadyChosen)
{
    combo_->ListIndex(1);
    TakeEvents();
    EXPECT_EQ(user_.Choose("frm", "kvcmb", "Atendido"), "");
    EXPECT_EQ(TakeEvents(), (Events{"drop down", "click 1"}));
}

TEST_F(ComboBox, OffersTheRowsThatDropDownAdds)
{
    combo_->OnDropDown([this] { combo_->AddItem("Tardio"); });
    EXPECT_EQ(user_.Choose("frm", "kvcmb", "Tardio"), "");
    EXPECT_EQ(combo_->ListIndex(), 3);
}

TEST_F(ComboBox, DoesNotOpenWhereDropDownDisablesIt)
{
    combo_->OnDropDown([this] { combo_->Enabled(false); });
    EXPECT_EQ(user_.Choose("frm", "kvcmb", 0), "frm.kvcmb is disabled");
    EXPECT_EQ(combo_->ListIndex(), -1);
}

TEST_F(ComboBox, RaisesEventsOfWritesAlsoWhileDisabledAndHidden)
{
    combo_->Enabled(false);
    combo_->Visible(false);
    TakeEvents();
    combo_->ListIndex(0);
    EXPECT_EQ(TakeEvents(), (Events{"click 0"}));
}

TEST_F(ComboBox, RefusesAMissingRow)
{
    EXPECT_EQ(user_.Choose("frm", "kvcmb", 9), "frm.kvcmb has no row 9");
    EXPECT_EQ(user_.Choose("frm", "kvcmb", "Nenhum"), "frm.kvcmb has no row \"Nenhum\"");
    EXPECT_EQ(combo_->ListIndex(), -1);
}

} // namespace kova::headless
