#include "tests/unit/toolkits/common/fixture.hpp"

#include "toolkits/common/boxes/find_box.hpp"

namespace kova::headless {

class FindBox : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVFind, "kvf");
        Has(WidgetKind::KVFind, "kvfnd").announcesEndOfSearch = true;
        Open();
        box_ = &Get<KVFind>("kvf");
        Listen(*box_);
        Listen(Get<KVFind>("kvfnd"));
    }

    void Listen(KVFind& box)
    {
        box.OnClick([this, &box] {
            events_.push_back("click " + std::to_string(box.Status()) + " '" + box.Text() + "'");
        });
        box.OnKeyDown([this, &box](Integer code, Integer) {
            events_.push_back("key " + std::to_string(code) + " '" + box.Text() + "'");
        });
    }

    KVFind* box_ = nullptr;
};

TEST_F(FindBox, SearchesAtTheFirstPress)
{
    EXPECT_EQ(box_->Status(), find_status::Clear);
    user_.Type("frm", "kvf", "Rex");
    TakeEvents();
    EXPECT_EQ(user_.Press("frm", "kvf"), "");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Rex'"}));
    EXPECT_EQ(box_->Status(), find_status::Search);
}

TEST_F(FindBox, ClearsAtThePressAfterASearch)
{
    user_.Type("frm", "kvf", "Rex");
    user_.Press("frm", "kvf");
    TakeEvents();
    user_.Press("frm", "kvf");
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
    user_.Press("frm", "kvf");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 ''"}));
}

TEST_F(FindBox, ClearsAFoundRecord)
{
    box_->Text("Maria");
    box_->Status(find_status::Found);
    user_.Press("frm", "kvf");
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
}

TEST_F(FindBox, SearchesWhatTheUserTypedOverAFoundRecord)
{
    box_->Text("Maria");
    box_->Status(find_status::Found);
    user_.Type("frm", "kvf", "Jo");
    TakeEvents();
    user_.Press("frm", "kvf");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Jo'"}));
}

TEST_F(FindBox, ForgetsTypingWhenCodeWritesTextOrStatus)
{
    user_.Type("frm", "kvf", "Jo");
    box_->Status(find_status::Found);
    TakeEvents();
    user_.Press("frm", "kvf");
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
}

TEST_F(FindBox, SearchesAgainAfterTypingIntoARunningSearch)
{
    user_.Type("frm", "kvf", "Rex");
    user_.Press("frm", "kvf");
    user_.Type("frm", "kvf", "Bob");
    TakeEvents();
    user_.Press("frm", "kvf");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Bob'"}));
}

TEST_F(FindBox, OfASearchDialogAnnouncesTheEndOfTheFormerSearchFirst)
{
    user_.Type("frm", "kvfnd", "Rex");
    user_.Press("frm", "kvfnd");
    EXPECT_EQ(TakeEvents().back(), "click 1 'Rex'");
    user_.Type("frm", "kvfnd", "Bob");
    TakeEvents();
    user_.Press("frm", "kvfnd");
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Bob'", "click 1 'Bob'"}));
    user_.Press("frm", "kvfnd");
    EXPECT_EQ(TakeEvents(), (Events{"click 2 ''"}));
}

TEST_F(FindBox, RaisesKeyDownOnceForEachCharacterBeforeItEnters)
{
    user_.Type("frm", "kvf", "aé1");
    EXPECT_EQ(TakeEvents(), (Events{"key 65 ''", "key 0 'a'", "key 49 'aé'"}));
}

TEST_F(FindBox, RaisesNothingForErasing)
{
    user_.Type("frm", "kvf", "ab");
    TakeEvents();
    ModelOf<toolkit::FindBoxModel>("kvf").UserErases();
    EXPECT_EQ(box_->Text(), "a");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(FindBox, TakesPastedTextCharacterByCharacter)
{
    ModelOf<toolkit::FindBoxModel>("kvf").UserEdits("xy");
    EXPECT_EQ(TakeEvents(), (Events{"key 88 ''", "key 89 'x'"}));
    ModelOf<toolkit::FindBoxModel>("kvf").UserEdits("xzy");
    EXPECT_EQ(TakeEvents(), (Events{"key 90 'xy'"}));
    EXPECT_EQ(box_->Text(), "xzy");
}

TEST_F(FindBox, TakesOfALongPasteWhatASearchCanUse)
{
    std::string pasted;
    for (int i = 0; i < 14'000; ++i)
        pasted += "é ";
    auto& box = ModelOf<toolkit::FindBoxModel>("kvf");
    box.UserEdits(pasted);
    EXPECT_EQ(TakeEvents().size(), 255U);
    EXPECT_EQ(toolkit::ToCharacters(box_->Text()), toolkit::ToCharacters(pasted).substr(0, 255));
    user_.Type("frm", "kvf", "x");
    EXPECT_EQ(toolkit::ToCharacters(box_->Text()).size(), 1U);
    EXPECT_EQ(box_->Text(), "x");
}

TEST_F(FindBox, IsFilledByCodeWithoutLimit)
{
    const std::string text(300, 'a');
    box_->Text(text);
    EXPECT_EQ(box_->Text(), text);
}

TEST_F(FindBox, RaisesNothingForWritesFromCode)
{
    box_->Text("x");
    box_->Status(1);
    box_->DisplayText("");
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(FindBox, IsEmptiedByDisplayTextAndKeepsItsStatus)
{
    box_->Text("Maria");
    box_->Status(find_status::Found);
    box_->DisplayText("");
    EXPECT_EQ(box_->Text(), "");
    EXPECT_EQ(box_->Status(), find_status::Found);
    EXPECT_EQ(FailureOf([this] { box_->DisplayText("x"); }), 380);
}

TEST_F(FindBox, IsReadyForANewSearchAfterReiniciarPesquisa)
{
    user_.Type("frm", "kvf", "Rex");
    user_.Press("frm", "kvf");
    TakeEvents();
    box_->ReiniciarPesquisa();
    EXPECT_EQ(TakeEvents(), (Events{"click 2 'Rex'"}));
    const auto& model = ModelOf<toolkit::FindBoxModel>("kvf");
    EXPECT_EQ(model.ShownSelection(), (toolkit::TextSelection{0, 3}));
    user_.Press("frm", "kvf");
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Rex'"}));
}

TEST_F(FindBox, TellsWhetherAPressWouldSearch)
{
    const auto& model = ModelOf<toolkit::FindBoxModel>("kvf");
    EXPECT_TRUE(model.WouldSearch());
    box_->Status(find_status::Found);
    EXPECT_FALSE(model.WouldSearch());
    user_.Type("frm", "kvf", "R");
    EXPECT_TRUE(model.WouldSearch());
}

TEST_F(FindBox, SearchesOnEnterOnlyWhereAPressWouldSearch)
{
    user_.Type("frm", "kvf", "Rex");
    TakeEvents();
    user_.PressKey("frm", toolkit::FormKey::Enter);
    EXPECT_EQ(TakeEvents(), (Events{"click 1 'Rex'"}));
    user_.PressKey("frm", toolkit::FormKey::Enter);
    EXPECT_TRUE(TakeEvents().empty());
    EXPECT_TRUE(ModelOf<toolkit::FindBoxModel>("kvfnd").HasFocus());
}

TEST_F(FindBox, DropsTheCharacterOfAKeyDownThatUnloadsTheForm)
{
    box_->OnKeyDown([this](Integer, Integer) { form_->Unload(); });
    user_.Type("frm", "kvf", "Rex");
    EXPECT_EQ(box_->Text(), "");
}

} // namespace kova::headless
