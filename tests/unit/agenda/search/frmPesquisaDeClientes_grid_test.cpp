// The grid of the picker of customers, and the dialog around it.

#include "agenda/search/frmPesquisaDeClientes.hpp"
#include "tests/unit/agenda/search/search_fixture.hpp"

namespace kova::agenda {

namespace {

class TheGridOfCustomers : public SearchTest {
protected:
    static scenario::RecordTable Customers(int count)
    {
        scenario::RecordTable table{{"CodigoDoCliente", "ApelidoOuNomeFantasia", "NomeOuRazaoSocial",
                                     "Situacao", "EnderecoCompleto", "TiposECanaisDeComunicacao", "VIP",
                                     "CategoriaDaCurvaABC"},
                                    {}};
        for (int number = 1; number <= count; ++number)
            table.rows.push_back({Double(number), "Zé", "José " + std::to_string(number), Long{1}, "Rua A, 1",
                                  "Fixo: 1", "Sim", "A"});
        return table;
    }

    std::shared_ptr<frmPesquisaDeClientes> pesquisa = frmPesquisaDeClientes::Criar();
    MSFlexGrid& grade = pesquisa->msfgGrade;
};

TEST_F(TheGridOfCustomers, HasNineColumnsAlignedLeft)
{
    pesquisa->ConfigurarGrade();
    const std::pair<const char*, Long> columns[] = {
        {"Coluna em branco", 0},     {"Código", 1100},  {"Apelido/Nome fantasia", 2000},
        {"Nome/Razão Social", 4020}, {"Situação", 0},   {"Endereço", 6300},
        {"Canal de Comunicação", 0}, {"ClienteVIP", 0}, {"CategoriaDaCurvaABC", 0}};
    ASSERT_EQ(grade.Cols(), 9);
    for (Long col = 0; col < 9; ++col) {
        EXPECT_EQ(grade.TextMatrix(0, col), columns[col].first);
        EXPECT_EQ(grade.ColWidth(col), columns[col].second) << col;
        EXPECT_EQ(grade.ColAlignment(col), 1) << col;
    }
    EXPECT_EQ(grade.Rows(), 1);
    EXPECT_FALSE(grade.Visible());
    EXPECT_FALSE(grade.Redraw());
}

TEST_F(TheGridOfCustomers, HasTheLookOfTheSearchDialogs)
{
    pesquisa->ConfigurarGrade();
    const toolkit::GridLook& look = ModelOf(grade).Look();
    EXPECT_EQ(look.font.name, "Arial");
    EXPECT_EQ(look.font.size, 11);
    EXPECT_EQ(look.backColorFixed, 16119286);
    EXPECT_EQ(look.backColorSel, 15921906);
    EXPECT_EQ(look.foreColorSel, colours::ButtonText);
    EXPECT_EQ(look.gridColor, 15724527);
    EXPECT_EQ(look.gridColorFixed, 15724527);
    EXPECT_EQ(look.scrollBars, 2);
    EXPECT_TRUE(look.wordWrap);
    EXPECT_EQ(grade.FixedCols(), 0);
}

TEST_F(TheGridOfCustomers, ShowsTheFieldsOfEachRecordAsText)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Customers(2));
    EXPECT_EQ(pesquisa->PreencherGrade(records), 0);
    ASSERT_EQ(grade.Rows(), 3);
    EXPECT_EQ(grade.FixedRows(), 1);
    const char* cells[] = {"", "2", "Zé", "José 2", "1", "Rua A, 1", "Fixo: 1", "Sim", "A"};
    for (Long col = 0; col < 9; ++col)
        EXPECT_EQ(grade.TextMatrix(2, col), cells[col]) << col;
    EXPECT_EQ(grade.RowHeight(0), 300);
    EXPECT_EQ(grade.RowHeight(2), 570);
    EXPECT_TRUE(grade.Redraw());
}

TEST_F(TheGridOfCustomers, ColoursItsRowsInTurn)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Customers(2));
    pesquisa->PreencherGrade(records);
    for (Long row = 1; row <= 2; ++row)
        for (Long col = 0; col < 9; ++col) {
            const toolkit::CellLook& look = ModelOf(grade).LookOfCell(row, col);
            EXPECT_EQ(look.back, row == 2 ? 15921906 : 14277081) << row << "," << col;
            EXPECT_EQ(look.fore, col == 1 ? 8421504 : 0) << row << "," << col;
        }
}

TEST_F(TheGridOfCustomers, IsNotShownByItsFillButByItsForm)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Customers(2));
    pesquisa->PreencherGrade(records);
    EXPECT_FALSE(grade.Visible());
    Use(*pesquisa, [&] { EXPECT_TRUE(grade.Visible()); });
}

TEST_F(TheGridOfCustomers, TakesFiftyThousandCustomers)
{
    pesquisa->ConfigurarGrade();
    auto records = Records(Customers(50000));
    EXPECT_EQ(pesquisa->PreencherGrade(records), 0);
    EXPECT_TRUE(Reports().empty());
    ASSERT_EQ(grade.Rows(), 50001);
    EXPECT_EQ(grade.TextMatrix(50000, 3), "José 50000");
    EXPECT_EQ(ModelOf(grade).LookOfCell(50000, 5).back, 15921906);
}

TEST_F(TheGridOfCustomers, ReportsAFailedFillUnderItsOwnTag)
{
    pesquisa->ConfigurarGrade();
    auto table = Customers(1);
    table.rows[0][1] = Null{};
    auto records = Records(table);
    pesquisa->PreencherGrade(records);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 94"), std::string::npos);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmPesquisaDeClientes, PreencherGrade, Ponto: 1"),
              std::string::npos);
}

class TheDialogOfCustomers : public TheGridOfCustomers { };

TEST_F(TheDialogOfCustomers, LaysItsGridOutInsideTheForm)
{
    Use(*pesquisa, [&] {
        const Form& form = *pesquisa->Formulario;
        EXPECT_EQ(grade.Top(), 1725);
        EXPECT_EQ(grade.Left(), 390);
        EXPECT_EQ(grade.Width(), form.ScaleWidth() - 780);
        EXPECT_EQ(grade.Height(), form.ScaleHeight() - 2700);
        const KVCommandButton& fechar = pesquisa->kvcmdFechar;
        EXPECT_EQ(fechar.Left(), grade.Left() + grade.Width() + 10 - (fechar.Width() + 250));
        EXPECT_TRUE(grade.Visible());
        EXPECT_TRUE(fechar.Visible());
    });
}

TEST_F(TheDialogOfCustomers, StillIgnoresItsBoxAfterItIsResized)
{
    Use(*pesquisa, [&] {
        pesquisa->IgnorarPesquisa = true;
        pesquisa->Formulario->Width(9000);
        EXPECT_TRUE(pesquisa->IgnorarPesquisa);
    });
}

TEST_F(TheDialogOfCustomers, LoadsItselfWhenItIsConfigured)
{
    pesquisa->ConfigurarGrade();
    EXPECT_EQ(pesquisa->kvcmdFechar.ToolTipText(), "Cancelar a pesquisa e fechar");
    EXPECT_EQ(Lines("create KOVA_N_SO.clsObterVersaoDoSO").size(), 1U);
    EXPECT_EQ(pesquisa->kvTheme.Caption(), "Pesquisa de clientes");
    EXPECT_TRUE(pesquisa->kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo.Enabled());
}

TEST_F(TheDialogOfCustomers, ReportsAFailedLoadUnderItsOwnTag)
{
    script.FailCreate("KOVA_N_SO.clsObterVersaoDoSO", Failure(429, "sem versão"));
    pesquisa->ConfigurarGrade();
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmPesquisaDeClientes, Form_Load, Ponto: 1"), std::string::npos);
}

} // namespace

} // namespace kova::agenda
