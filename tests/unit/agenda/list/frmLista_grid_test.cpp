// The grid: columns, cells, colours, pictures, and the row under the mouse.

#include "tests/unit/agenda/module_fixture.hpp"

namespace kova::agenda {

namespace {

const std::string Selecionar = "KOVA_N_Agenda.clsAgenda.Selecionar";

class TheGrid : public ModuleTest {
protected:
    std::shared_ptr<frmLista> OpenWith(std::vector<std::vector<Value>> rows)
    {
        script.Always(Selecionar, {.records = Table(std::move(rows))});
        return Open();
    }

    /// Moves the mouse over the grid to a height in twips.
    void HoverAt(Twips y) { EXPECT_EQ(user.HoverAt("frmLista", "msfgGrade", 100, y), ""); }

    static std::array<const KVCommandButton*, 8> Buttons(const frmLista& lista)
    {
        return {&lista.kvcmdMarcarAgendamentoComoAgendado,
                &lista.kvcmdMarcarAgendamentoComoAtendido,
                &lista.kvcmdMarcarAgendamentoComoCancelado,
                &lista.kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda,
                &lista.kvcmdDetalhar,
                &lista.kvcmdAlterar,
                &lista.kvcmdExcluir,
                &lista.kvcmdImprimirFicha};
    }
};

TEST_F(TheGrid, HasItsThirtyNineColumns)
{
    ScriptAppointments(1);
    const auto lista = Open();
    auto& grade = lista->msfgGrade;
    ASSERT_EQ(grade.Cols(), 39);
    const std::map<Long, std::pair<const char*, Long>> visible{
        {1, {"Número do\r\nLançamento", 1570}},   {3, {"Hora\r\nInicial", 1170}},
        {6, {"Código do\r\nCliente", 1430}},      {8, {"Nome ou\r\nRazão Social", 5040}},
        {13, {"Nome do\r\nAnimal", 1720}},        {23, {"Nome do\r\nTipo de serviço", 2000}},
        {25, {"Nome do serviço", 28800 - 15650}}, {34, {"Situação", 2100}},
    };
    for (Long col = 0; col < 39; ++col) {
        const auto found = visible.find(col);
        EXPECT_EQ(grade.ColWidth(col), found == visible.end() ? 0 : found->second.second) << col;
        if (found != visible.end()) {
            EXPECT_EQ(grade.TextMatrix(0, col), found->second.first);
        }
        const bool centred = col == 1 || col == 6 || col == 12 || col == 34;
        EXPECT_EQ(grade.ColAlignment(col), centred ? 4 : 1) << col;
    }
    EXPECT_EQ(grade.TextMatrix(0, 0), "Coluna em branco");
    EXPECT_EQ(grade.TextMatrix(0, 33), "Código do situação");
    EXPECT_EQ(grade.FixedRows(), 1);
    EXPECT_EQ(grade.FixedCols(), 0);
    EXPECT_EQ(grade.FontName(), "Arial");
    EXPECT_EQ(grade.FontSize(), 11);
    EXPECT_EQ(grade.RowHeight(0), 700);
    EXPECT_EQ(grade.RowHeight(1), 570);
    EXPECT_TRUE(grade.Redraw());
}

TEST_F(TheGrid, WritesEachFieldIntoItsColumn)
{
    const auto lista = OpenWith({Appointment(77, {{"Situacao", Long{2}}})});
    auto& grade = lista->msfgGrade;
    EXPECT_EQ(grade.TextMatrix(1, 0), "");
    EXPECT_EQ(grade.TextMatrix(1, 1), "77");
    EXPECT_EQ(grade.TextMatrix(1, 2), "20/11/2026");
    EXPECT_EQ(grade.TextMatrix(1, 3), "08:00");
    EXPECT_EQ(grade.TextMatrix(1, 5), "09:00");
    EXPECT_EQ(grade.TextMatrix(1, 6), "12");
    EXPECT_EQ(grade.TextMatrix(1, 8), "José Antônio da Silva");
    EXPECT_EQ(grade.TextMatrix(1, 10), "(EnderecoCompletoComCEP)");
    EXPECT_EQ(grade.TextMatrix(1, 18), "(NomeDaRaca)");
    EXPECT_EQ(grade.TextMatrix(1, 21), "") << "Null";
    EXPECT_EQ(grade.TextMatrix(1, 30), "") << "Null";
    EXPECT_EQ(grade.TextMatrix(1, 32), "Não");
    EXPECT_EQ(grade.TextMatrix(1, 33), "2");
    EXPECT_EQ(grade.TextMatrix(1, 34), "");
    EXPECT_EQ(grade.TextMatrix(1, 35), "19/11/2026 17:45:10");
    EXPECT_EQ(grade.TextMatrix(1, 37), "") << "Null";
    EXPECT_EQ(grade.TextMatrix(1, 38), "") << "Null";
}

TEST_F(TheGrid, GivesNoPictureToANumberThatNoStatusHasHoweverLarge)
{
    const auto lista = OpenWith({Appointment(1, {{"Situacao", Long{99999}}}),
                                 Appointment(2, {{"Situacao", Double{3e12}}}), Appointment(3)});
    EXPECT_TRUE(Reports().empty());
    auto& grade = lista->msfgGrade;
    EXPECT_EQ(grade.TextMatrix(1, 33), "99999");
    EXPECT_EQ(grade.TextMatrix(2, 37), "") << "the row is filled to its end";
    const auto& shown = dynamic_cast<toolkit::GridModel&>(grade);
    EXPECT_EQ(shown.PictureOfCell(1, 34), "");
    EXPECT_EQ(shown.PictureOfCell(2, 34), "");
    EXPECT_NE(shown.PictureOfCell(3, 34), "");
}

TEST_F(TheGrid, ReportsANullWhereNoneMayBe)
{
    const auto lista = OpenWith({Appointment(1), Appointment(2, {{"NomeDoAnimal", Null{}}})});
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 94"), std::string::npos) << Reports()[0];
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmLista, PreencherGrade, Ponto: 7"), std::string::npos);
    EXPECT_FALSE(lista->msfgGrade.Redraw()) << "the fill ended in its middle";
    EXPECT_EQ(lista->msfgGrade.TextMatrix(1, 13), "Rex");
    EXPECT_TRUE(lista->msfgGrade.Visible()) << "the caller went on";
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.LastRecord(), 2);
}

TEST_F(TheGrid, ReportsAFieldThatTheSelectionLacks)
{
    auto table = Table({Appointment(1)});
    table.fields[7] = "OutroNome";
    script.Always(Selecionar, {.records = table});
    Open();
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 3265"), std::string::npos) << Reports()[0];
}

TEST_F(TheGrid, ColoursOddAndEvenRowsAndTheNumbersColumn)
{
    ScriptAppointments(2);
    const auto lista = Open();
    const auto& grade = dynamic_cast<toolkit::GridModel&>(lista->msfgGrade);
    EXPECT_EQ(grade.BackColorOf(1, 8), Rgb(242, 242, 242));
    EXPECT_EQ(grade.BackColorOf(2, 8), colours::White);
    EXPECT_EQ(grade.ForeColorOf(1, 1), Rgb(128, 128, 128));
    EXPECT_EQ(grade.ForeColorOf(1, 8), colours::Black);
    EXPECT_EQ(grade.ForeColorOf(0, 1), Rgb(128, 128, 128));
    EXPECT_TRUE(grade.LookOfCell(0, 38).bold);
    EXPECT_FALSE(grade.LookOfCell(1, 8).bold);
}

TEST_F(TheGrid, ShowsThePictureOfTheStatusAndNoneForAnUnknownOne)
{
    std::vector<std::vector<Value>> rows;
    int number = 0;
    for (const Long status : {0, 1, 2, 3, 4, 5})
        rows.push_back(Appointment(++number, {{"Situacao", status}}));
    const auto lista = OpenWith(std::move(rows));
    const auto& grade = dynamic_cast<toolkit::GridModel&>(lista->msfgGrade);
    EXPECT_EQ(grade.PictureOfCell(1, 34), "");
    EXPECT_EQ(grade.PictureOfCell(2, 34), lista->imgEtiqueta_Situacao_Agendado.Picture().name);
    EXPECT_EQ(grade.PictureOfCell(3, 34), lista->imgEtiqueta_Situacao_Atendido.Picture().name);
    EXPECT_EQ(grade.PictureOfCell(4, 34), lista->imgEtiqueta_Situacao_Cancelado.Picture().name);
    EXPECT_EQ(grade.PictureOfCell(5, 34),
              lista->imgEtiqueta_Situacao_Atendido_Gerado_PreVenda.Picture().name);
    EXPECT_EQ(grade.PictureOfCell(6, 34), "");
    EXPECT_NE(grade.PictureOfCell(2, 34), "");
    EXPECT_EQ(grade.LookOfCell(2, 34).pictureAlignment, 4);
}

TEST_F(TheGrid, SelectsTheRowUnderTheMouseAndPutsEightButtonsOnIt)
{
    ScriptAppointments(5);
    const auto lista = Open();
    HoverAt(700 + 570 + 285);
    auto& grade = lista->msfgGrade;
    EXPECT_EQ(grade.Row(), 2);
    EXPECT_EQ(grade.RowSel(), 2);
    EXPECT_EQ(grade.Col(), 0);
    EXPECT_EQ(grade.ColSel(), 38);
    EXPECT_EQ(grade.SelectionMode(), 1);
    const Twips rightOfName = grade.Left() + 1570 + 1170 + 1430 + 5040;
    Twips distance = 4560;
    for (const KVCommandButton* button : Buttons(*lista)) {
        EXPECT_TRUE(button->Visible()) << button->Name();
        EXPECT_EQ(button->Left(), rightOfName - distance) << button->Name();
        EXPECT_EQ(button->Top(), grade.Top() + 700 + 570) << button->Name();
        distance -= 570;
    }
}

TEST_F(TheGrid, HidesTheButtonsWhereNoRowIsUnderTheMouse)
{
    ScriptAppointments(1);
    const auto lista = Open();
    auto& grade = lista->msfgGrade;
    for (const Twips away : {Twips{100}, Twips{700 + 570 + 285}}) {
        HoverAt(900);
        EXPECT_TRUE(lista->kvcmdDetalhar.Visible());
        HoverAt(away);
        for (const KVCommandButton* button : Buttons(*lista))
            EXPECT_FALSE(button->Visible()) << button->Name();
        EXPECT_EQ(grade.SelectionMode(), 0);
        EXPECT_EQ(grade.Row(), 1);
        EXPECT_EQ(grade.Col(), 0);
    }
}

TEST_F(TheGrid, DoesNothingWhileTheMouseStaysInARow)
{
    ScriptAppointments(3);
    const auto lista = Open();
    HoverAt(1000);
    lista->kvcmdDetalhar.Visible(false);
    HoverAt(1010);
    EXPECT_FALSE(lista->kvcmdDetalhar.Visible());
}

TEST_F(TheGrid, RoundsTheHoverRowToTheEvenNeighbour)
{
    ScriptAppointments(3);
    const auto lista = Open();
    // (Y + 150) / 570 - 1 is exactly 0.5 at 705 and exactly 1.5 at 1275.
    HoverAt(705);
    EXPECT_FALSE(lista->kvcmdDetalhar.Visible()) << "0.5 rounds to 0";
    HoverAt(706);
    EXPECT_EQ(lista->msfgGrade.Row(), 1);
    HoverAt(1275);
    EXPECT_EQ(lista->msfgGrade.Row(), 2) << "1.5 rounds to 2";
}

TEST_F(TheGrid, NeverSelectsMoreThanOneRowInADrag)
{
    ScriptAppointments(5);
    const auto lista = Open();
    lista->msfgGrade.Row(1);
    lista->msfgGrade.RowSel(4);
    EXPECT_EQ(lista->msfgGrade.Row(), 4);
    EXPECT_EQ(lista->msfgGrade.RowSel(), 4);
    EXPECT_EQ(lista->msfgGrade.ColSel(), 38);
}

TEST_F(TheGrid, KeepsTheFormerCellsWhereTheSelectionIsEmpty)
{
    ScriptAppointments(2);
    const auto lista = Open();
    script.Answer(Selecionar, {.records = Table({})});
    EXPECT_EQ(lista->GerarLista(), 0);
    lista->AtualizarObjetos(0);
    EXPECT_EQ(lista->msfgGrade.Rows(), 3);
    EXPECT_EQ(lista->msfgGrade.TextMatrix(1, 1), "1");
    EXPECT_FALSE(lista->msfgGrade.Visible());
}

} // namespace

} // namespace kova::agenda
