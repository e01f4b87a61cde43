#include "tests/unit/toolkits/common/fixture.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/label.hpp"

namespace kova::headless {

class PlainWidgets : public ToolkitTest { };

TEST_F(PlainWidgets, CheckBoxRaisesClickOnlyWhereAWriteChangesIt)
{
    Has(WidgetKind::CheckBox, "chk");
    Open();
    auto& box = Get<CheckBox>("chk");
    box.OnClick(Note("click"));
    box.Value(1);
    box.Value(1);
    EXPECT_EQ(TakeEvents().size(), 1U);
    EXPECT_EQ(FailureOf([&] { box.Value(3); }), 380);
    EXPECT_EQ(box.Value(), 1);
}

TEST_F(PlainWidgets, CheckBoxIsToggledByTheUser)
{
    Has(WidgetKind::CheckBox, "chk").value = 2;
    Open();
    auto& box = Get<CheckBox>("chk");
    box.OnClick(Note("click"));
    EXPECT_EQ(user_.Click("frm", "chk"), "");
    EXPECT_EQ(box.Value(), 0);
    user_.Click("frm", "chk");
    EXPECT_EQ(box.Value(), 1);
    EXPECT_EQ(TakeEvents().size(), 2U);
}

class Options : public ToolkitTest {
protected:
    void SetUp() override
    {
        for (const int index : {1, 2}) {
            auto& option = Has(WidgetKind::OptionButton, "opt");
            option.index = index;
            option.value = index == 1;
        }
        Has(WidgetKind::OptionButton, "optOther").value = 1;
        Open();
        for (const int index : {1, 2})
            Get<OptionButton>("opt", index).OnClick([this](Integer number) {
                events_.push_back("click " + std::to_string(number));
            });
    }
};

TEST_F(Options, ClearTheirSiblingsAndTellTheirIndex)
{
    EXPECT_EQ(user_.Click("frm", "opt", 2), "");
    EXPECT_FALSE(Get<OptionButton>("opt", 1).Value());
    EXPECT_TRUE(Get<OptionButton>("opt", 2).Value());
    EXPECT_TRUE(Get<OptionButton>("optOther").Value());
    EXPECT_EQ(TakeEvents(), (Events{"click 2"}));
}

TEST_F(Options, RaiseClickForAWriteOfTrueAlsoWhereSetAlready)
{
    Get<OptionButton>("opt", 1).Value(true);
    EXPECT_EQ(TakeEvents(), (Events{"click 1"}));
    Get<OptionButton>("opt", 1).Value(false);
    EXPECT_FALSE(Get<OptionButton>("opt", 1).Value());
    EXPECT_TRUE(TakeEvents().empty());
}

class NavigationBar : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::KVNavigationBar, "kvnb");
        Open();
        bar_ = &Get<KVNavigationBar>("kvnb");
        bar_->OnClick([this](Integer& button) { events_.push_back(std::to_string(button)); });
    }

    void Write(Double first, Double last, Double count)
    {
        bar_->FirstRecord(first);
        bar_->LastRecord(last);
        bar_->RecordCount(count);
    }
    toolkit::NavigationBarModel& Model() { return ModelOf<toolkit::NavigationBarModel>("kvnb"); }

    KVNavigationBar* bar_ = nullptr;
};

TEST_F(NavigationBar, ShowsItsNumbersAtRefresh)
{
    Write(1, 15, 42);
    EXPECT_EQ(Model().ShownText(), "0 - 0 de 0");
    bar_->Refresh();
    EXPECT_EQ(Model().ShownText(), "1 - 15 de 42");
    EXPECT_EQ(bar_->LastRecord(), 15);
}

TEST_F(NavigationBar, OffersTheButtonsThatItsNumbersAllow)
{
    Write(1, 15, 42);
    bar_->Refresh();
    EXPECT_EQ(user_.Bar("frm", "kvnb", 2), "frm.kvnb does not offer button 2");
    EXPECT_EQ(user_.Bar("frm", "kvnb", 3), "");
    Write(31, 42, 42);
    bar_->Refresh();
    EXPECT_EQ(user_.Bar("frm", "kvnb", 1), "");
    EXPECT_EQ(user_.Bar("frm", "kvnb", 4), "frm.kvnb does not offer button 4");
    EXPECT_EQ(TakeEvents(), (Events{"3", "1"}));
}

TEST_F(NavigationBar, ChangesNoNumberByItself)
{
    Write(1, 15, 42);
    bar_->Refresh();
    user_.Bar("frm", "kvnb", 4);
    EXPECT_EQ(bar_->FirstRecord(), 1);
    EXPECT_EQ(Model().ShownText(), "1 - 15 de 42");
}

class LabelOfAutomaticSize : public ToolkitTest { };

TEST_F(LabelOfAutomaticSize, FollowsItsCaptionInsideTheWrite)
{
    Has(WidgetKind::Label, "lbl").autoSize = true;
    Make();
    auto& label = Get<Label>("lbl");
    label.Caption("iii");
    const Twips narrow = label.Width();
    label.Caption("WWW");
    const Twips wide = label.Width();
    EXPECT_LT(narrow, wide);
    label.Caption("iii");
    EXPECT_EQ(label.Width(), narrow);
}

TEST_F(LabelOfAutomaticSize, TakesItsSizeBackWithTheSameCaptionAgain)
{
    Has(WidgetKind::Label, "lbl").autoSize = true;
    Make();
    auto& label = Get<Label>("lbl");
    label.Caption("Faísca");
    const Twips width = label.Width();
    const Twips height = label.Height();
    label.Width(width + 300);
    label.Height(height + 300);
    label.Caption("Faísca");
    EXPECT_EQ(label.Width(), width);
    EXPECT_EQ(label.Height(), height);
}

TEST_F(LabelOfAutomaticSize, GrowsByLines)
{
    Has(WidgetKind::Label, "lbl").autoSize = true;
    Make();
    auto& label = Get<Label>("lbl");
    label.Caption("a");
    const Twips one = label.Height();
    label.Caption("a\r\nb");
    EXPECT_EQ(label.Height(), 2 * one);
    label.Caption("");
    EXPECT_EQ(label.Height(), one);
    EXPECT_EQ(label.Width(), 0);
}

TEST_F(LabelOfAutomaticSize, KeepsItsWidthWhereItWraps)
{
    auto& design = Has(WidgetKind::Label, "lbl");
    design.autoSize = design.wordWrap = true;
    design.width = 1000;
    design.height = 255;
    Make();
    auto& label = Get<Label>("lbl");
    label.Caption("uma");
    const Twips one = label.Height();
    label.Caption("uma frase que precisa de mais linhas");
    EXPECT_EQ(label.Width(), 1000);
    EXPECT_GE(label.Height(), 3 * one);
}

TEST_F(LabelOfAutomaticSize, MeasuresAccentedLettersByTheirLetter)
{
    Has(WidgetKind::Label, "lbl").autoSize = true;
    Make();
    auto& label = Get<Label>("lbl");
    label.Caption("acao");
    const Twips plain = label.Width();
    label.Caption("ação");
    EXPECT_EQ(label.Width(), plain);
}

TEST_F(PlainWidgets, LabelOfFixedSizeKeepsItsSize)
{
    Has(WidgetKind::Label, "lbl").width = 500;
    Make();
    Get<Label>("lbl").Caption("um texto muito mais longo");
    EXPECT_EQ(Get<Label>("lbl").Width(), 500);
}

TEST_F(PlainWidgets, TellTheirKindNameAndIndex)
{
    Has(WidgetKind::Shape, "shp");
    Has(WidgetKind::Image, "img").picture = "agendado";
    Has(WidgetKind::KVDTPicker, "kvdtp").index = 3;
    Make();
    EXPECT_EQ(form_->Controls().size(), 3U);
    EXPECT_EQ(form_->Control("shp").Kind(), WidgetKind::Shape);
    EXPECT_EQ(Get<Image>("img").Picture().name, "agendado");
    EXPECT_EQ(form_->Control("kvdtp", 3).Index(), 3);
    EXPECT_EQ(FailureOf([this] { form_->Control("kvdtp"); }), 438);
    EXPECT_EQ(FailureOf([this] { Get<Label>("shp"); }), 13);
}

TEST_F(PlainWidgets, RefuseANegativeSizeAndAllowANegativePlace)
{
    Has(WidgetKind::Shape, "shp");
    Make();
    auto& shape = form_->Control("shp");
    EXPECT_EQ(FailureOf([&] { shape.Width(-1); }), 380);
    EXPECT_EQ(FailureOf([&] { shape.Height(-1); }), 380);
    shape.Left(-10);
    EXPECT_EQ(shape.Left(), -10);
}

TEST_F(PlainWidgets, KeepWhatTheFormsWrite)
{
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Has(WidgetKind::KVTheme, "KVTheme").caption = "Agendamento";
    Make();
    auto& button = Get<KVCommandButton>("kvcmd");
    button.Caption("Salvar");
    button.ToolTipTitle("");
    button.ToolTipBody("");
    button.ToolTipType(0);
    button.ToolTipText("Salva");
    button.Tag("x");
    EXPECT_EQ(button.Caption() + button.ToolTipText() + button.Tag(), "SalvarSalvax");
    auto& band = Get<KVTheme>("KVTheme");
    EXPECT_EQ(band.Caption(), "Agendamento");
    band.DataOfInclusion("a");
    band.DataOfAlteration("b");
    EXPECT_EQ(band.DataOfInclusion() + band.DataOfAlteration(), "ab");
}

TEST_F(PlainWidgets, ButtonIsPressedByTheUser)
{
    Has(WidgetKind::KVCommandButton, "kvcmd");
    Open();
    Get<KVCommandButton>("kvcmd").OnClick(Note("click"));
    EXPECT_EQ(user_.Click("frm", "kvcmd"), "");
    EXPECT_EQ(TakeEvents(), (Events{"click"}));
}

class Menus : public ToolkitTest {
protected:
    void SetUp() override
    {
        Has(WidgetKind::Menu, "mnuParent").visible = false;
        for (const char* name : {"mnuOne", "mnuTwo"}) {
            auto& entry = Has(WidgetKind::Menu, name);
            entry.container = "mnuParent";
            entry.caption = name;
        }
        Open();
        Get<Menu>("mnuOne").OnClick(Note("one"));
        Get<Menu>("mnuTwo").OnClick(Note("two"));
    }

    void Pop() { form_->PopupMenu(Get<Menu>("mnuParent"), 300, 1710); }
};

TEST_F(Menus, RunTheChosenEntryBeforeTheCallReturns)
{
    toolkit_.Queue().QueueMenu("mnuTwo");
    Pop();
    EXPECT_EQ(TakeEvents(), (Events{"two"}));
    EXPECT_EQ(toolkit_.Log().back(), "popup mnuParent 300 1710");
}

TEST_F(Menus, MayBeLeftWithoutAChoice)
{
    toolkit_.Queue().QueueMenu("");
    Pop();
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(Menus, ShowOnlyVisibleEntries)
{
    Get<Menu>("mnuOne").Visible(false);
    Get<Menu>("mnuTwo").Visible(false);
    Pop();
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(Menus, PassAFailureOfTheEntryToTheCaller)
{
    Get<Menu>("mnuOne").OnClick([] { throw Failure(FailureNumber::Overflow); });
    toolkit_.Queue().QueueMenu("mnuOne");
    EXPECT_EQ(FailureOf([this] { Pop(); }), 6);
}

TEST_F(PlainWidgets, ALabelsMnemonicIsNoPartOfItsCaption)
{
    Has(WidgetKind::KVTextBox, "kvtxt");
    ControlDesign& label = Has(WidgetKind::Label, "lbl");
    label.caption = "&Nome";
    label.labelOf = "kvtxt";
    Open();
    EXPECT_EQ(Get<Label>("lbl").Caption(), "Nome");
    EXPECT_EQ(ModelOf<toolkit::LabelModel>("lbl").CaptionWithMnemonic(), "&Nome");
    Get<Label>("lbl").Caption("Nome e mais");
    EXPECT_EQ(ModelOf<toolkit::LabelModel>("lbl").CaptionWithMnemonic(), "Nome e mais");
}

TEST_F(PlainWidgets, ALabelThatNamesNothingShowsItsAmpersands)
{
    Has(WidgetKind::Label, "lbl").caption = "Silva & Filhos";
    Open();
    EXPECT_EQ(Get<Label>("lbl").Caption(), "Silva & Filhos");
}

} // namespace kova::headless
