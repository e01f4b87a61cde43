// The grid of the picker of services, and the dialog around it.

#include "agenda/search/frmPesquisaDeServicos.hpp"
#include "tests/unit/agenda/search/search_fixture.hpp"

namespace kova::agenda {

namespace {

using scenario::RecordTable;

class TheGridOfServices : public SearchTest {
protected:
    static RecordTable Services(int count)
    {
        RecordTable table{{"Codigo", "Nome", "Descricao", "ValorDeVenda", "Custo", "NumeroDoTipoDeServico",
                           "TempoDeExecucao"},
                          {}};
        for (int number = 1; number <= count; ++number)
            table.rows.push_back({Double(number), "Banho " + std::to_string(number), "Com tosa", Double{45.5},
                                  Double{20}, Long{4}, "01:30"});
        return table;
    }

    std::shared_ptr<frmPesquisaDeServicos> pesquisa = frmPesquisaDeServicos::Criar();
    MSFlexGrid& grade = pesquisa->msfgGrade;
};

TEST_F(TheGridOfServices, HasEightColumns)
{
    pesquisa->ConfigurarGrade();
    struct Column {
        const char* title;
        Long width;
        Integer alignment;
    };
    const Column columns[] = {{"Coluna em branco", 0, 1},
                              {"Código", 1100, 1},
                              {"Nome", 4200, 1},
                              {"Descrição", 6020, 1},
                              {"Valor", 2100, 4},
                              {"Custo", 0, 1},
                              {"Número do tipo de serviço", 0, 7},
                              {"Tempo de execução do serviço", 0, 7}};
    ASSERT_EQ(grade.Cols(), 8);
    for (Long col = 0; col < 8; ++col) {
        EXPECT_EQ(grade.TextMatrix(0, col), columns[col].title);
        EXPECT_EQ(grade.ColWidth(col), columns[col].width) << col;
        EXPECT_EQ(grade.ColAlignment(col), columns[col].alignment) << col;
    }
    EXPECT_EQ(grade.Rows(), 1);
    EXPECT_FALSE(grade.Visible());
    EXPECT_FALSE(grade.Redraw());
}

TEST_F(TheGridOfServices, HasTheLookOfTheSearchDialogs)
{
    pesquisa->ConfigurarGrade();
    const toolkit::GridLook& look = ModelOf(grade).Look();
    EXPECT_EQ(look.font.name, "Arial");
    EXPECT_EQ(look.font.size, 11);
    EXPECT_EQ(look.focusRect, 0);
    EXPECT_EQ(look.appearance, 0);
    EXPECT_EQ(look.borderStyle, 0);
    EXPECT_EQ(look.allowUserResizing, 1);
    EXPECT_EQ(look.backColorFixed, 16119286);
    EXPECT_EQ(look.backColorSel, 15921906);
    EXPECT_EQ(look.foreColorSel, colours::ButtonText);
    EXPECT_EQ(look.backColorBkg, 16777215);
    EXPECT_EQ(look.gridColor, 15724527);
    EXPECT_EQ(look.gridColorFixed, 15724527);
    EXPECT_EQ(look.backColor, 16777215);
    EXPECT_EQ(look.foreColor, 0);
    EXPECT_EQ(look.gridLines, 0);
    EXPECT_EQ(look.gridLinesFixed, 0);
    EXPECT_EQ(look.gridLineWidth, 1);
    EXPECT_TRUE(look.wordWrap);
    EXPECT_EQ(look.scrollBars, 2);
    EXPECT_EQ(grade.FixedCols(), 0);
    EXPECT_EQ(grade.SelectionMode(), 1) << "the keys move a whole row";
}

TEST_F(TheGridOfServices, LoadsItsDialogWhenItIsConfigured)
{
    EXPECT_EQ(pesquisa->kvcmdFechar.ToolTipText(), "");
    pesquisa->ConfigurarGrade();
    EXPECT_EQ(pesquisa->kvcmdFechar.ToolTipText(), "Cancelar a pesquisa e fechar");
    EXPECT_EQ(Lines("create KOVA_N_SO.clsObterVersaoDoSO").size(), 1U);
    pesquisa->ConfigurarGrade();
    EXPECT_EQ(Lines("create KOVA_N_SO.clsObterVersaoDoSO").size(), 1U);
}

TEST_F(TheGridOfServices, ShowsTheFieldsOfEachRecordAsText)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Services(3));
    EXPECT_EQ(pesquisa->PreencherGrade(records), 0);
    ASSERT_EQ(grade.Rows(), 4);
    EXPECT_EQ(grade.FixedRows(), 1);
    const char* cells[] = {"", "2", "Banho 2", "Com tosa", "45,5", "20", "4", "01:30"};
    for (Long col = 0; col < 8; ++col)
        EXPECT_EQ(grade.TextMatrix(2, col), cells[col]) << col;
    EXPECT_EQ(grade.RowHeight(0), 300);
    EXPECT_EQ(grade.RowHeight(1), 570);
    EXPECT_EQ(grade.RowHeight(3), 570);
    EXPECT_TRUE(grade.Redraw());
}

TEST_F(TheGridOfServices, StartsAtTheFirstRecordWhereverTheRecordSetStands)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Services(3));
    records.MoveLast();
    pesquisa->PreencherGrade(records);
    EXPECT_EQ(grade.TextMatrix(1, 1), "1");
    EXPECT_EQ(grade.TextMatrix(3, 1), "3");
}

TEST_F(TheGridOfServices, ColoursItsRowsInTurn)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Services(4));
    pesquisa->PreencherGrade(records);
    for (Long row = 1; row <= 4; ++row)
        for (Long col = 0; col < 8; ++col) {
            const toolkit::CellLook& look = ModelOf(grade).LookOfCell(row, col);
            EXPECT_EQ(look.back, row % 2 == 0 ? 15921906 : 14277081) << row << "," << col;
            EXPECT_EQ(look.fore, col == 1 ? 8421504 : 0) << row << "," << col;
        }
}

TEST_F(TheGridOfServices, IsShownByItsFill)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Services(2));
    pesquisa->PreencherGrade(records);
    EXPECT_TRUE(grade.Visible());
}

TEST_F(TheGridOfServices, StandsOnTheFirstServiceAfterTheFill)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Services(30));
    pesquisa->PreencherGrade(records);
    EXPECT_EQ(grade.Row(), 1);
    EXPECT_EQ(grade.RowSel(), 1);
    EXPECT_EQ(grade.TopRow(), 1);
}

TEST_F(TheGridOfServices, TakesMoreRowsThanSixteenBitsAndTheCellLimitAllow)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Services(44000));
    EXPECT_EQ(pesquisa->PreencherGrade(records), 0);
    EXPECT_TRUE(Reports().empty());
    ASSERT_EQ(grade.Rows(), 44001);
    EXPECT_EQ(grade.TextMatrix(44000, 1), "44000");
}

TEST_F(TheGridOfServices, LosesItsRowsWhenItIsConfiguredAgain)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Services(5));
    pesquisa->PreencherGrade(records);
    pesquisa->ConfigurarGrade();
    EXPECT_EQ(grade.Rows(), 1);
    EXPECT_EQ(grade.TextMatrix(0, 2), "Nome");
    EXPECT_FALSE(grade.Visible());
}

TEST_F(TheGridOfServices, ReportsAFailedFillUnderTheListsTag)
{
    pesquisa->ConfigurarGrade();
    auto records = Records({{"Codigo"}, {{Double{1}}}});
    EXPECT_EQ(pesquisa->PreencherGrade(records), 0) << "the flag keeps its value";
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 3265"), std::string::npos);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmLista, PreencherGrade, Ponto: 1"), std::string::npos);
    EXPECT_FALSE(grade.Redraw()) << "nothing is put back";
}

class TheDialogOfServices : public TheGridOfServices { };

TEST_F(TheDialogOfServices, LaysItsGridOutInsideTheForm)
{
    Use(*pesquisa, [] {});
    const Form& form = *pesquisa->Formulario;
    EXPECT_EQ(grade.Top(), 1725);
    EXPECT_EQ(grade.Left(), 390);
    EXPECT_EQ(grade.Width(), form.ScaleWidth() - 780);
    EXPECT_EQ(grade.Height(), form.ScaleHeight() - 2700);
    const KVCommandButton& fechar = pesquisa->kvcmdFechar;
    EXPECT_EQ(fechar.Left(), grade.Left() + grade.Width() + 10 - (fechar.Width() + 250));
    EXPECT_GE(fechar.Top(), grade.Top() + grade.Height());
    EXPECT_LE(fechar.Top() + fechar.Height(), form.ScaleHeight());
    EXPECT_TRUE(grade.Visible());
    EXPECT_TRUE(fechar.Visible());
}

TEST_F(TheDialogOfServices, HasRoomForAllItsColumns)
{
    pesquisa->ConfigurarGrade();
    Use(*pesquisa, [] {});
    Long sum = 0;
    for (Long col = 0; col < grade.Cols(); ++col)
        sum += grade.ColWidth(col);
    constexpr Twips scrollBar = 14 * 15;
    EXPECT_GE(grade.Width(), static_cast<Twips>(sum) + scrollBar);
    EXPECT_LE(pesquisa->Formulario->Width(), 1024 * 15);
    EXPECT_LE(pesquisa->Formulario->Height(), 728 * 15) << "a screen of 768 rows has a task bar";
}

TEST_F(TheDialogOfServices, FollowsTheSizeOfItsWindow)
{
    Use(*pesquisa, [&] { pesquisa->Formulario->Width(9000); });
    EXPECT_EQ(grade.Width(), pesquisa->Formulario->ScaleWidth() - 780);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(TheDialogOfServices, SurvivesAWindowSmallerThanItsMargins)
{
    Use(*pesquisa, [&] {
        pesquisa->Formulario->Width(600);
        pesquisa->Formulario->Height(600);
    });
    EXPECT_EQ(grade.Width(), 0);
    EXPECT_EQ(grade.Height(), 0);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(TheDialogOfServices, ForgetsToIgnoreItsBoxWhenItIsResized)
{
    Use(*pesquisa, [&] {
        pesquisa->IgnorarPesquisa = true;
        pesquisa->Formulario->Width(9000);
        EXPECT_FALSE(pesquisa->IgnorarPesquisa);
    });
}

TEST_F(TheDialogOfServices, HasAFrameOnTheSystemOfSquareCorners)
{
    pesquisa->ConfigurarGrade();
    EXPECT_THROW(pesquisa->Formulario->Control("lshpObj"), Failure);
    script.System("WINDOWS 8");
    const auto framed = frmPesquisaDeServicos::Criar();
    framed->ConfigurarGrade();
    const Widget& frame = framed->Formulario->Control("lshpObj");
    EXPECT_TRUE(frame.Visible());
    EXPECT_EQ(frame.Width(), framed->Formulario->ScaleWidth());
    EXPECT_EQ(frame.Height(), framed->Formulario->ScaleHeight());
}

TEST_F(TheDialogOfServices, ReportsAFailedLoadUnderItsOwnTag)
{
    script.FailCreate("KOVA_N_SO.clsObterVersaoDoSO", Failure(429, "sem versão"));
    pesquisa->ConfigurarGrade();
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmPesquisaDeServicos, Form_Load, Ponto: 1"), std::string::npos);
    EXPECT_EQ(grade.Cols(), 8) << "its caller goes on";
}

TEST_F(TheDialogOfServices, HasItsTitleAndItsColours)
{
    EXPECT_EQ(pesquisa->kvTheme.Caption(), "Pesquisa de serviços");
    EXPECT_EQ(pesquisa->kvTheme.Height(), 795);
    const auto& fechar = dynamic_cast<toolkit::WidgetCore&>(pesquisa->kvcmdFechar).Design();
    EXPECT_EQ(fechar.backColor, 13855744);
    EXPECT_EQ(fechar.highlightColor, 14530157);
    EXPECT_EQ(fechar.fontColor, 16777215);
    EXPECT_EQ(dynamic_cast<toolkit::WidgetCore&>(pesquisa->kvTheme).Design().backColor, 15921906);
    EXPECT_FALSE(pesquisa->kvfndCodigoOuNome.Enabled()) << "shut until a type is chosen";
}

TEST_F(TheDialogOfServices, WaitsInItsMiddle)
{
    Use(*pesquisa, [&] {
        const Double before = toolkit.Clock().Timer();
        pesquisa->ExibirOcultarpicMensagem(true);
        EXPECT_EQ(toolkit.Clock().Timer() - before, 1);
        EXPECT_TRUE(pesquisa->picMensagem.Visible());
        EXPECT_FALSE(pesquisa->Formulario->Enabled());
        const Form& form = *pesquisa->Formulario;
        EXPECT_EQ(pesquisa->picMensagem.Left(), form.ScaleWidth() / 2 - pesquisa->picMensagem.Width() / 2);
        EXPECT_EQ(pesquisa->picMensagem.Top(), form.ScaleHeight() / 2 - pesquisa->picMensagem.Height() / 2);
        pesquisa->ExibirOcultarpicMensagem(false);
        EXPECT_FALSE(pesquisa->picMensagem.Visible());
        EXPECT_TRUE(form.Enabled());
    });
    pesquisa->ExibirOcultarpicMensagem(true);
    EXPECT_FALSE(pesquisa->picMensagem.Visible()) << "nothing happens while it is hidden";
}

} // namespace

} // namespace kova::agenda
