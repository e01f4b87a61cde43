// The panel and the layout.

#include "tests/unit/agenda/module_fixture.hpp"

namespace kova::agenda {

namespace {

const std::string Selecionar = "KOVA_N_Agenda.clsAgenda.Selecionar";

class ThePanel : public ModuleTest {
protected:
    std::shared_ptr<frmLista> OpenWith(std::vector<std::vector<Value>> rows)
    {
        script.Always(Selecionar, {.records = Table(std::move(rows))});
        return Open();
    }
};

TEST_F(ThePanel, ShowsTheCellsOfTheHoveredRow)
{
    const auto lista =
        OpenWith({Appointment(1), Appointment(2, {{"NomeDoAnimal", "Mimi"}, {"HoraFinal", "10:30"}})});
    EXPECT_EQ(user.Hover("frmLista", "msfgGrade", 2), "");
    EXPECT_EQ(lista->lblApelidoOuNomeFantasiaDoCliente.Caption(), "Zé");
    EXPECT_EQ(lista->lblNomeOuRazaoSocialDoCliente.Caption(), "José Antônio da Silva");
    EXPECT_EQ(lista->lblComunicacaoDoCliente.Caption(), "Celular: 00000-0000");
    EXPECT_EQ(lista->lblNomeDoAnimal.Caption(), "Mimi");
    EXPECT_EQ(lista->lblSexoDoAnimal.Caption(), "(SexoDoAnimal)");
    EXPECT_EQ(lista->lblPorteDoAnimal.Caption(), "(PorteDoAnimal)");
    EXPECT_EQ(lista->lblEspecieDoAnimal.Caption(), "(NomeDaEspecie)");
    EXPECT_EQ(lista->lblRacaDoAnimal.Caption(), "(NomeDaRaca)");
    EXPECT_EQ(lista->lblObservacaoDoAnimal.Caption(), "");
    EXPECT_EQ(lista->lblInicioDoServico.Caption(), "08:00");
    EXPECT_EQ(lista->lblFimDoServico.Caption(), "10:30");
    EXPECT_EQ(lista->lblNomeDoServico.Caption(), "(NomeDoServico)");
    EXPECT_EQ(lista->lblNomeDoFuncionario.Caption(), "Ana") << "the nickname";
    EXPECT_EQ(lista->lblTransporteBuscar.Caption(), "Sim");
    EXPECT_EQ(lista->lblTransporteLevar.Caption(), "Não");
    EXPECT_EQ(lista->lblObservacaoDoAgendamento.Caption(), "");
}

TEST_F(ThePanel, NamesACompanyByItsTradeName)
{
    const auto lista = OpenWith({Appointment(1), Appointment(2, {{"TipoDeCliente", "PJ"}})});
    user.Hover("frmLista", "msfgGrade", 1);
    EXPECT_EQ(lista->lblTitulo_ApelidoOuNomeFantasiaDoCliente.Caption(), "Apelido:");
    EXPECT_EQ(lista->lblTitulo_NomeOuRazaoSocialDoCliente.Caption(), "Nome:");
    const Twips personsName = lista->lblNomeOuRazaoSocialDoCliente.Left();
    user.Hover("frmLista", "msfgGrade", 2);
    EXPECT_EQ(lista->lblTitulo_ApelidoOuNomeFantasiaDoCliente.Caption(), "Nome fantasia:");
    EXPECT_EQ(lista->lblTitulo_NomeOuRazaoSocialDoCliente.Caption(), "Razão Social:");
    EXPECT_GT(lista->lblNomeOuRazaoSocialDoCliente.Left(), personsName) << "the longer titles move the rest";
}

TEST_F(ThePanel, SaysWhoIncludedAnAppointmentThatWasNeverChanged)
{
    const auto lista = OpenWith({Appointment(1), Appointment(2, {{"UsuarioDaAlteracao", "  "}})});
    for (const int row : {1, 2}) {
        user.Hover("frmLista", "msfgGrade", row);
        EXPECT_EQ(lista->lblTitulo_IncluidoOuAlteradoPor.Caption(), "Incluído por:");
        EXPECT_EQ(lista->lblIncluidoOuAlteradoPor.Caption(), "Maria às 17:45");
    }
}

TEST_F(ThePanel, SaysWhoChangedAnAppointment)
{
    const auto lista = OpenWith({Appointment(
        1, {{"UsuarioDaAlteracao", "Carlos"}, {"DataEHoraDaAlteracao", "20/11/2026 09:05:59"}})});
    user.Hover("frmLista", "msfgGrade", 1);
    EXPECT_EQ(lista->lblTitulo_IncluidoOuAlteradoPor.Caption(), "Alterado por:");
    EXPECT_EQ(lista->lblIncluidoOuAlteradoPor.Caption(), "Carlos às 09:05");
}

TEST_F(ThePanel, LetsEachLabelFollowTheOneBeforeIt)
{
    const auto lista = OpenWith({Appointment(1)});
    user.Hover("frmLista", "msfgGrade", 1);
    const auto right = [](const Label& label) { return label.Left() + label.Width(); };
    EXPECT_EQ(lista->lblApelidoOuNomeFantasiaDoCliente.Left(),
              right(lista->lblTitulo_ApelidoOuNomeFantasiaDoCliente) + 50);
    EXPECT_EQ(lista->lblTitulo_NomeOuRazaoSocialDoCliente.Left(),
              right(lista->lblApelidoOuNomeFantasiaDoCliente) + 200);
    EXPECT_EQ(lista->lblComunicacaoDoCliente.Left(), right(lista->lblTitulo_ComunicacaoDoCliente) + 50);
    EXPECT_EQ(lista->lblTitulo_ObservacaoDoAnimal.Left(), right(lista->lblRacaDoAnimal) + 200);
    EXPECT_EQ(lista->lblTitulo_Funcionario.Left(), right(lista->lblNomeDoServico) + 200);
    EXPECT_EQ(lista->lblIncluidoOuAlteradoPor.Left(), right(lista->lblTitulo_IncluidoOuAlteradoPor) + 50);
}

TEST_F(ThePanel, SavesTheSwitchFirstAndThenGoesToTheFirstPage)
{
    ScriptAppointments(42);
    const auto lista = Open();
    user.Bar("frmLista", "kvnbBarraDeNavegacao", 3);
    lista->PaginaSalva = 2;
    lines.clear();
    EXPECT_EQ(user.Click("frmLista", "chkExibirPainel"), "");
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines[0], R"(settings write "ExibirPainel" "CheckBoxExibirPainel" "0")");
    EXPECT_NE(lines[1].find("Selecionar(Long 1, Integer& 21,"), std::string::npos) << lines[1];
    EXPECT_EQ(lista->LinhasDoPainel, 0);
    EXPECT_EQ(lista->RegistrosPorPagina, 21);
    EXPECT_EQ(lista->PaginaAtual, 1);
    EXPECT_FALSE(lista->picPainel.Visible());
    EXPECT_EQ(lista->msfgGrade.Rows(), 22);

    EXPECT_EQ(user.Click("frmLista", "chkExibirPainel"), "");
    EXPECT_EQ(profile.ValueOf("ExibirPainel", "CheckBoxExibirPainel"), "1");
    EXPECT_EQ(lista->LinhasDoPainel, 2);
    EXPECT_EQ(lista->RegistrosPorPagina, 19);
    EXPECT_TRUE(lista->picPainel.Visible());
}

TEST_F(ThePanel, IsRefilledWithEachPage)
{
    const auto lista = OpenWith({Appointment(1, {{"NomeDoAnimal", "Bidu"}})});
    // The first page came before the panel was shown; the next one fills it.
    lista->GerarLista();
    lista->AtualizarObjetos(0);
    EXPECT_EQ(lista->lblNomeDoAnimal.Caption(), "Bidu");
}

class TheLayout : public ModuleTest { };

TEST_F(TheLayout, PlacesTheFiltersOneAfterTheOther)
{
    const auto lista = Open();
    EXPECT_EQ(lista->lblTitulo.Top(), 350);
    EXPECT_EQ(lista->lblTitulo.Left(), 300);
    EXPECT_EQ(lista->kvcmdAdicionar.Top(), 1200);
    EXPECT_EQ(lista->kvcmdAdicionar.Left(), 300);
    EXPECT_EQ(lista->kvfndPesquisar.Left(), 300 + 1530 + 100);
    EXPECT_EQ(lista->kvcmbSituacao.Left(), 1930 + 2460 + 100);
    EXPECT_EQ(lista->kvcmdIrParaDiaAnterior.Left(), 4490 + 2460 + 100);
    EXPECT_EQ(lista->kvdtpDataDeAgendamento.Left(), 7050 + 360);
    EXPECT_EQ(lista->kvcmdIrParaDiaPosterior.Left(), 7410 + 1605);
    EXPECT_EQ(lista->kvcmdImprimirLista.Left(), 9015 + 360 + 100);
    EXPECT_EQ(lista->kvcmdImprimirLista.Top(), 1200);
    EXPECT_EQ(lista->kvcmbTiposDeServicos.Top(), 1800);
    EXPECT_EQ(lista->kvcmbTiposDeServicos.Left(), 1930);
    EXPECT_EQ(lista->kvcmbFuncionarios.Top(), 1800);
    EXPECT_EQ(lista->kvcmbFuncionarios.Left(), 4490);
    EXPECT_EQ(lista->lblExibirPainel.Top(), 1790);
    EXPECT_EQ(lista->lblExibirPainel.Left() + lista->lblExibirPainel.Width() / 2, 300 + 765);
    EXPECT_EQ(lista->chkExibirPainel.Top(), 2070);
    EXPECT_EQ(lista->chkExibirPainel.Left() + lista->chkExibirPainel.Width() / 2, 300 + 765);
    EXPECT_EQ(lista->lblMensagemDeResultado.Top(), 2400);
    EXPECT_EQ(lista->lblMensagemDeResultado.Left(), 1930);
    EXPECT_EQ(lista->picMensagem.Left(), 1930);
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.Top(), 1065);
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.Left(), 28800 - 5220 - 120);
    EXPECT_EQ(lista->msfgGrade.Top(), 2470);
    EXPECT_EQ(lista->msfgGrade.Left(), 300);
    EXPECT_EQ(lista->msfgGrade.Width(), 28200);
    EXPECT_EQ(lista->msfgGrade.Height(), 16200 - 1470);
    EXPECT_EQ(lista->picPainel.Left(), 300);
    EXPECT_EQ(lista->picPainel.Width(), 28200);
    EXPECT_EQ(lista->shpShape1.Width(), 28200);
    EXPECT_EQ(lista->shpShape2.Width(), 28200);
}

TEST_F(TheLayout, FollowsTheContainer)
{
    const auto lista = Open();
    toolkit.ResizeContainer(container, 20490, 10500);
    EXPECT_EQ(lista->msfgGrade.Width(), 20490 - 600);
    EXPECT_EQ(lista->msfgGrade.ColWidth(25), 20490 - 15650);
    EXPECT_EQ(lista->msfgGrade.ColWidth(8), 5040);
    EXPECT_EQ(lista->RegistrosPorPagina, (10500 - 1470 - 700) / 650 - 2);
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.Left(), 20490 - 5220 - 120);
}

TEST_F(TheLayout, TakesTheSmallOneUpToAScreenOf1024Pixels)
{
    toolkit.ScreenWidthInPixels(1024);
    container = toolkit.CreateContainer(15360, 10350);
    const auto lista = Open();
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.Top(), lista->lblTitulo.Top());
    EXPECT_EQ(lista->msfgGrade.ColWidth(8), 15360 - 6885);
    EXPECT_EQ(lista->msfgGrade.ColWidth(13), 0);
    EXPECT_EQ(lista->msfgGrade.ColWidth(23), 0);
    EXPECT_EQ(lista->msfgGrade.ColWidth(25), 0);
}

TEST_F(TheLayout, TakesTheWideOneFromAScreenOf1025Pixels)
{
    toolkit.ScreenWidthInPixels(1025);
    container = toolkit.CreateContainer(15375, 10350);
    const auto lista = Open();
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.Top(), 1065);
    EXPECT_EQ(lista->msfgGrade.ColWidth(8), 5040);
    EXPECT_EQ(lista->msfgGrade.ColWidth(13), 1720);
    EXPECT_EQ(lista->msfgGrade.ColWidth(25), 0) << "a negative width counts as 0";
}

TEST_F(TheLayout, PassesOnAPageSizeBelowOneAsItStands)
{
    container = toolkit.CreateContainer(15360, 1470 + 600);
    Open();
    ASSERT_EQ(Lines("call KOVA_N_Agenda.clsAgenda.Selecionar").size(), 1U);
    // A grid of 600 twips holds -1 rows, rounded down, and the panel takes two.
    EXPECT_NE(Lines("call KOVA_N_Agenda.clsAgenda.Selecionar")[0].find("Integer& -3,"), std::string::npos)
        << Lines("call KOVA_N_Agenda.clsAgenda.Selecionar")[0];
}

} // namespace

} // namespace kova::agenda
