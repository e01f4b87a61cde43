#include "host/day_text.hpp"

#include "host/session/session_clock.hpp"
#include "tests/unit/host/with_application.hpp"
#include "toolkits/qt/screen/toolkit.hpp"

#include <QWidget>

namespace kova::host {

namespace {

/// A list's form with three appointments in its grid.
class DayText : public WithApplication {
protected:
    DayText()
    {
        FormDesign design;
        design.name = "frmLista";
        for (const auto& [kind, name] : {std::pair{WidgetKind::MSFlexGrid, "msfgGrade"},
                                         {WidgetKind::Label, "lblMensagemDeResultado"},
                                         {WidgetKind::KVDTPicker, "kvdtpDataDeAgendamento"}}) {
            ControlDesign control;
            control.kind = kind;
            control.name = name;
            control.visible = kind != WidgetKind::Label;
            design.controls.push_back(control);
        }
        form_ = toolkit_.CreateForm(design);
        form_->Show(ShowMode::Modeless);
        Bind<KVDTPicker>(form_, "kvdtpDataDeAgendamento").Text("20/11/2026");
        auto& grid = Bind<MSFlexGrid>(form_, "msfgGrade");
        grid.Cols(40);
        grid.Rows(4);
        const auto row = [&](Long number, const char* time, const char* animal, const char* status) {
            grid.TextMatrix(number, 3, time);
            grid.TextMatrix(number, 13, animal);
            grid.TextMatrix(number, 33, status);
        };
        row(1, "09:00", "Rex", "1");
        row(2, "09:30", "Açaí", "4");
        row(3, "10:00", "Bia", "7");
    }

    const SessionClock clock_{Date{2026, 11, 20}};
    qt::QtToolkit toolkit_{clock_};
    FormRef form_;
};

} // namespace

TEST_F(DayText, IsATableOfAlignedColumns)
{
    EXPECT_EQ(DayAsText(*form_, 3),
              "Agenda de 20/11/2026\n"
              "Hora   Cliente  Animal  Serviço  Situação\n"
              "09:00           Rex              Agendado\n"
              "09:30           Açaí             At. gerado pré-venda\n"
              "10:00           Bia              7\n");
}

TEST_F(DayText, TellsASituationThatHasNoNameByItsNumberOfAnySize)
{
    auto& grid = Bind<MSFlexGrid>(form_, "msfgGrade");
    for (const Text number : {"5", "99999999999999999999", "1e300"}) {
        grid.TextMatrix(3, 33, number);
        EXPECT_NE(DayAsText(*form_, 3).find("Bia              " + number + "\n"), std::string::npos)
            << number;
    }
}

TEST_F(DayText, TellsHowManyRowsThereAreBeyondItsOwn)
{
    EXPECT_EQ(DayAsText(*form_, 1),
              "Agenda de 20/11/2026\n"
              "Hora   Cliente  Animal  Serviço  Situação\n"
              "09:00           Rex              Agendado\n"
              "... e mais 2 nesta página\n");
    EXPECT_EQ(DayAsText(*form_, 10), DayAsText(*form_, 3));
}

TEST_F(DayText, IsTheMessageWhereTheListShowsOne)
{
    auto& result = Bind<Label>(form_, "lblMensagemDeResultado");
    result.Caption("Nenhum agendamento foi encontrado.");
    result.Visible(true);
    EXPECT_EQ(DayAsText(*form_, 3), "Agenda de 20/11/2026\nNenhum agendamento foi encontrado.\n");
}

} // namespace kova::host
