#include "agenda/contracts/support/memory_record_set.hpp"
#include "tests/unit/toolkits/common/fixture.hpp"

namespace kova::headless {
namespace {

using toolkit::AccessObserver;
using toolkit::MemberAccess;

ReportDesign Design()
{
    using enum ReportControlKind;
    return {.name = "drTeste",
            .caption = "desenho",
            .width = 10000,
            .leftMargin = 850,
            .topMargin = 850,
            .rightMargin = 850,
            .bottomMargin = 850,
            .sections = {
                {ReportSectionKind::PageHead,
                 "Cabecalho",
                 500,
                 {{.kind = Label, .name = "lblTitulo", .content = "Título", .width = 3000, .height = 225},
                  {.kind = Line, .name = "linha", .top = 400, .width = 3000}}},
                {ReportSectionKind::Details,
                 "Detalhes",
                 6000,
                 {{.kind = TextBox, .name = "txtNome", .width = 3000, .height = 225}}}}};
}

RecordSetRef Names(std::vector<std::vector<Value>> rows)
{
    return std::make_shared<MemoryRecordSet>(std::vector<Text>{"Nome"}, rows);
}

class Reports : public ToolkitTest {
protected:
    template <class Act> static std::int32_t NumberOf(Act act)
    {
        try {
            act();
        } catch (const Failure& failure) {
            return failure.Number();
        }
        return 0;
    }
};

/// Fails the access of that member, and keeps a list of all.
class Watcher : public AccessObserver {
public:
    std::vector<std::string> seen;
    std::string failing;

    void Read(const MemberAccess& access) override { See("read ", access); }
    void Write(const MemberAccess& access, const Value&) override { See("write ", access); }
    void Call(const MemberAccess& access, const Value&) override { See("call ", access); }

private:
    void See(const std::string& act, const MemberAccess& access)
    {
        const std::string control(access.control);
        const std::string name = std::string(access.form) + "." + control + (control.empty() ? "" : ".")
            + std::string(access.member);
        seen.push_back(act + name);
        if (name == failing)
            throw Failure(FailureNumber::InvalidArgument);
    }
};

TEST_F(Reports, ReachTheirControlsBySectionAndName)
{
    const ReportRef report = toolkit_.CreateReport(Design());
    EXPECT_EQ(report->Name(), "drTeste");
    ReportSection& head = report->Section("Cabecalho");
    EXPECT_EQ(head.Name(), "Cabecalho");
    EXPECT_EQ(head.Label("lblTitulo").Caption(), "Título");
    head.Label("lblTitulo").Caption("Agenda");
    EXPECT_EQ(head.Label("lblTitulo").Caption(), "Agenda");
    ReportTextBox& name = report->Section("Detalhes").TextBox("txtNome");
    EXPECT_EQ(name.DataField(), "");
    name.DataField("Nome");
    EXPECT_EQ(name.DataField(), "Nome");
}

TEST_F(Reports, FailOnNamesThatTheyDoNotHave)
{
    const ReportRef report = toolkit_.CreateReport(Design());
    EXPECT_EQ(NumberOf([&] { report->Section("Nada"); }), 438);
    EXPECT_EQ(NumberOf([&] { report->Section("Cabecalho").Label("txtNome"); }), 438);
    EXPECT_EQ(NumberOf([&] { report->Section("Cabecalho").TextBox("lblTitulo"); }), 13);
    EXPECT_EQ(NumberOf([&] { report->Section("Cabecalho").Label("linha"); }), 13);
}

TEST_F(Reports, AreNotMadeOfADesignWithANameTwice)
{
    ReportDesign twice = Design();
    twice.sections[1].controls[0].name = "lblTitulo";
    EXPECT_EQ(NumberOf([&] { toolkit_.CreateReport(twice); }), 380);
    twice = Design();
    twice.sections[1].name = "Cabecalho";
    EXPECT_EQ(NumberOf([&] { toolkit_.CreateReport(twice); }), 380);
    twice = Design();
    twice.sections[1].kind = ReportSectionKind::PageHead;
    EXPECT_EQ(NumberOf([&] { toolkit_.CreateReport(twice); }), 380);
}

TEST_F(Reports, KeepWhatIsWrittenAndRefuseWhatCannotBe)
{
    const ReportRef report = toolkit_.CreateReport(Design());
    report->LeftMargin(100);
    report->TopMargin(200);
    report->RightMargin(300);
    report->BottomMargin(400);
    report->Width(10145);
    report->Orientation(ReportOrientation::Landscape);
    report->WindowState(ReportWindowState::Maximized);
    report->DataMember("");
    EXPECT_EQ(report->LeftMargin() + report->TopMargin() + report->RightMargin() + report->BottomMargin(),
              1000);
    EXPECT_EQ(report->Width(), 10145);
    EXPECT_EQ(report->Orientation(), ReportOrientation::Landscape);
    EXPECT_EQ(report->WindowState(), ReportWindowState::Maximized);
    EXPECT_EQ(NumberOf([&] { report->TopMargin(-1); }), 380);
    EXPECT_EQ(NumberOf([&] { report->Width(-1); }), 380);
    EXPECT_EQ(NumberOf([&] { report->DataMember("x"); }), 380);
    EXPECT_EQ(report->TopMargin(), 200);
}

TEST_F(Reports, ShowTheirPagesAndAreAsDesignedAfterwards)
{
    const ReportRef report = toolkit_.CreateReport(Design());
    const RecordSetRef records = Names({{"Rex"}, {"Mia"}, {Null{}}});
    report->DataSource(records);
    report->Section("Cabecalho").Label("lblTitulo").Caption("%p/%P");
    report->Section("Detalhes").TextBox("txtNome").DataField("Nome");
    report->Caption("Imprimir");
    report->Orientation(ReportOrientation::Landscape);
    report->Refresh();
    std::vector<Text> texts;
    toolkit_.Queue().QueuePreview([&](const reports::Document& pages) {
        for (const reports::Page& page : pages.pages) {
            for (const reports::Item& item : page.items)
                texts.push_back(item.text);
        }
        EXPECT_EQ(NumberOf([&] { report->ShowModal(); }), 5) << "it is shown already";
    });
    report->ShowModal();
    EXPECT_EQ(texts, (std::vector<Text>{"1/3", "", "Rex", "2/3", "", "Mia", "3/3", "", ""}));
    EXPECT_EQ(
        toolkit_.Log().back(),
        "report drTeste modal caption \"Imprimir\" width 10000 margins 850 850 850 850 landscape records 3 "
        "pages 3");
    EXPECT_EQ(report->Caption(), "desenho");
    EXPECT_EQ(report->Orientation(), ReportOrientation::Default);
    EXPECT_EQ(report->Section("Cabecalho").Label("lblTitulo").Caption(), "Título");
    EXPECT_EQ(records.use_count(), 1) << "the data is let go";
}

TEST_F(Reports, PrintHeadAndFootWithoutData)
{
    const ReportRef report = toolkit_.CreateReport(Design());
    toolkit_.Queue().QueuePreview(
        [](const reports::Document& pages) { EXPECT_EQ(pages.pages.at(0).items.size(), 2u); });
    report->ShowModal();
    EXPECT_TRUE(toolkit_.Log().back().ends_with("portrait records 0 pages 1"));
}

TEST_F(Reports, LetGoOfTheDataAlsoWhereItFails)
{
    const ReportRef report = toolkit_.CreateReport(Design());
    const RecordSetRef records = Names({{"Rex"}});
    report->DataSource(records);
    report->Section("Detalhes").TextBox("txtNome").DataField("Nada");
    EXPECT_EQ(NumberOf([&] { report->ShowModal(); }), 3265);
    EXPECT_EQ(records.use_count(), 1);
    EXPECT_TRUE(toolkit_.Log().empty());
}

TEST_F(Reports, KeepTheFormsFromTakingInputWhileShown)
{
    Open();
    const toolkit::FormModel& model = *toolkit_.FindForm("frm");
    const ReportRef report = toolkit_.CreateReport(Design());
    std::string refusal;
    toolkit_.Queue().QueuePreview([&](const reports::Document&) { refusal = model.Refusal(); });
    report->ShowModal();
    EXPECT_NE(refusal, "");
    EXPECT_EQ(model.Refusal(), "");
}

TEST_F(Reports, TellEachAccessToTheObserverWhichMayFailIt)
{
    const ReportRef report = toolkit_.CreateReport(Design());
    Watcher watcher;
    toolkit_.Observer(&watcher);
    report->Section("Cabecalho").Label("lblTitulo").Caption("x");
    report->Section("Detalhes").TextBox("txtNome").DataField();
    report->LeftMargin(850);
    report->Refresh();
    EXPECT_EQ(watcher.seen,
              (std::vector<std::string>{"write drTeste.lblTitulo.Caption", "read drTeste.txtNome.DataField",
                                        "write drTeste.LeftMargin", "call drTeste.Refresh"}));
    watcher.failing = "drTeste.lblTitulo.Caption";
    EXPECT_EQ(NumberOf([&] { report->Section("Cabecalho").Label("lblTitulo").Caption("y"); }), 5);
    watcher.failing = "drTeste.Show";
    EXPECT_EQ(NumberOf([&] { report->ShowModal(); }), 5);
    toolkit_.Observer(nullptr);
    EXPECT_EQ(report->Section("Cabecalho").Label("lblTitulo").Caption(), "x");
    EXPECT_TRUE(toolkit_.Log().empty());
}

} // namespace
} // namespace kova::headless
