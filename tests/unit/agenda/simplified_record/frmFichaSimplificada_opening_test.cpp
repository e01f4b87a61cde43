// The simplified record form as it opens for each operation.

#include "tests/unit/agenda/simplified_record/frmFichaSimplificada_fixture.hpp"

namespace kova::agenda {

namespace {

class OpeningTheSimplifiedForm : public FichaSimplificadaTest {
protected:
    struct Expected {
        Integer mode;
        const char* title;
        bool enabled;
        const char* first;
        const char* firstTip;
        const char* second;
        const char* secondTip;
    };

    static bool IsEdited(WidgetKind kind)
    {
        return kind == WidgetKind::KVTextBox || kind == WidgetKind::KVComboBox
            || kind == WidgetKind::KVDTPicker || kind == WidgetKind::KVTime || kind == WidgetKind::KVFind;
    }
    Text CaptionOf(KVCommandButton& button) const
    {
        return dynamic_cast<toolkit::CommandButtonModel&>(button).ShownCaption();
    }
};

TEST_F(OpeningTheSimplifiedForm, NamesItsTitleFieldsAndButtonsByTheOperation)
{
    const Expected table[] = {
        {1, "Adicionar agendamento simplificado", true, "Salvar", "Salvar inclusão e fechar", "Cancelar",
         "Cancelar inclusão e fechar"},
        {2, "Detalhar agendamento simplificado", false, "Fechar", "Fechar detalhamento", "Alterar",
         "Alterar dados"},
        {3, "Alterar agendamento completo", true, "Salvar", "Salvar alteração e fechar", "Cancelar",
         "Cancelar alteração e fechar"},
        {4, "Excluir agendamento completo", false, "Confirmar", "Confirmar exclusão e e fechar", "Cancelar",
         "Cancelar exclusão e fechar"},
    };
    for (const Expected& row : table) {
        Prepare();
        Show(row.mode, [&] {
            EXPECT_EQ(ficha->Estado.TipoDeOperacao, row.mode);
            EXPECT_EQ(ficha->kvTheme.Caption(), row.title);
            EXPECT_EQ(CaptionOf(ficha->kvcmdSalvarFecharConfirmar), row.first) << row.mode;
            EXPECT_EQ(ficha->kvcmdSalvarFecharConfirmar.ToolTipText(), row.firstTip);
            EXPECT_EQ(CaptionOf(ficha->kvcmdCancelarAlterar), row.second) << row.mode;
            EXPECT_EQ(ficha->kvcmdCancelarAlterar.ToolTipText(), row.secondTip);
            for (const Widget* widget : ficha->Formulario->Controls()) {
                if (IsEdited(widget->Kind())) {
                    EXPECT_EQ(widget->Enabled(), row.enabled) << row.mode << " " << widget->Name();
                }
            }
        });
    }
}

TEST_F(OpeningTheSimplifiedForm, IsEmptyForAdding)
{
    Prepare();
    Show(1, [&] {
        EXPECT_EQ(ficha->Estado.NumeroDeLancamento, 0);
        EXPECT_EQ(ficha->kvdtpDataInicial.Text(), "20/11/2026") << "the day of the list";
        EXPECT_EQ(ficha->kvtxtNomeOuRazaoSocialDoCliente.Text(), "");
        EXPECT_EQ(ficha->kvcmbSituacao.ListIndex(), -1);
        EXPECT_EQ(ficha->kvTheme.DataOfInclusion(), "");
        EXPECT_EQ(ficha->kvTheme.DataOfAlteration(), "");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), find_status::Clear);
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), find_status::Clear);
    });
}

TEST_F(OpeningTheSimplifiedForm, TakesTheDayThatTheListShows)
{
    Prepare();
    ASSERT_EQ(user.Click("frmLista", "kvcmdIrParaDiaPosterior"), "");
    Show(1, [&] { EXPECT_EQ(ficha->kvdtpDataInicial.Text(), "21/11/2026"); });
}

TEST_F(OpeningTheSimplifiedForm, SwallowsTheRewritingOfTheFirstType)
{
    Prepare();
    ficha->kvtxtObservacaoDoServico.Text("fica");
    Show(1, [&] {
        EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "fica") << "no reset";
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 0);
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo) << "the guard is used up";
    });
}

TEST_F(OpeningTheSimplifiedForm, IgnoresTheFirstKeyAfterAddingWithAType)
{
    Prepare();
    MakeForm(3);
    Show(1, [&] {
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 3);
        EXPECT_TRUE(ficha->Estado.IgnorarEventoDeCampo);
        ficha->kvfNomeDoServico.Text("Banho");
        EXPECT_EQ(user.Type(Form, "kvfCodigoDoServico", "8"), "");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho");
        EXPECT_EQ(user.Type(Form, "kvfCodigoDoServico", "9"), "");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "");
    });
}

TEST_F(OpeningTheSimplifiedForm, ReadsTheSelectedRowOfTheList)
{
    for (const Integer mode : {2, 3, 4}) {
        Prepare();
        Show(mode, [&] {
            EXPECT_EQ(ficha->Estado.NumeroDeLancamento, 41);
            EXPECT_EQ(ficha->kvtxtNomeOuRazaoSocialDoCliente.Text(), "José Antônio da Silva");
            EXPECT_EQ(ficha->kvtxtCanaisDeComunicacaoDoCliente.Text(), "Celular: 00000-0000");
            EXPECT_EQ(ficha->kvtxtNomeDoAnimal.Text(), "Rex");
            EXPECT_EQ(ficha->kvcmbSexoDoAnimal.Text(), "Macho");
            EXPECT_EQ(ficha->kvcmbEspeciesDeAnimais.Text(), "Gato");
            EXPECT_EQ(ficha->kvcmbRacasDeAnimais.Text(), "Siamês");
            EXPECT_EQ(ficha->kvtxtCorDoAnimal.Text(), "Preto");
            EXPECT_EQ(ficha->kvcmbTiposDeServicos.Text(), "Banho e tosa");
            EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "8");
            EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho");
            EXPECT_EQ(ficha->kvdtpDataInicial.Text(), "20/11/2026");
            EXPECT_EQ(ficha->kvtimHoraInicial.Text(), "08:00");
            EXPECT_EQ(ficha->kvdtpDataFinal.Text(), "20/11/2026");
            EXPECT_EQ(ficha->kvtimHoraFinal.Text(), "09:00");
            EXPECT_EQ(ficha->kvcmbFuncionarios.Text(), "Ana");
            EXPECT_EQ(ficha->kvtxtTempoDoServico.Text(), "01:00");
            EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "Arisco");
            EXPECT_EQ(ficha->kvcmbSituacao.Text(), "Agendado");
            EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo) << mode;
        });
        EXPECT_TRUE(Reports().empty()) << mode;
    }
}

TEST_F(OpeningTheSimplifiedForm, LeavesACodeThatTheCombosDoNotHave)
{
    Prepare({{"CodigoDoFuncionario", Long{99}}, {"NumeroDoTipoDeServico", Long{99}}, {"Situacao", Long{4}}});
    Show(3, [&] {
        EXPECT_EQ(ficha->kvcmbFuncionarios.ListIndex(), -1);
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 0) << "where its opener put it";
        EXPECT_EQ(ficha->kvcmbSituacao.ListIndex(), -1);
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
    });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpeningTheSimplifiedForm, ReportsACodeThatIsNoNumberUnderTheFullFormsTag)
{
    Prepare({{"CodigoDoFuncionario", "sete"}});
    ficha->MontarExibirFormulario(2);
    ExpectReport("13", "frmFichaCompleta, MontarExibirFormulario, Ponto: 5\"");
    EXPECT_FALSE(ficha->Formulario->Visible());
}

TEST_F(OpeningTheSimplifiedForm, ShowsOnlyWhatIsStoredOfAnAnimalThatIsDeleted)
{
    Prepare({{"SexoDoAnimal", "?"}, {"NomeDaEspecie", "Iguana"}, {"NomeDaRaca", ""}});
    Show(4, [&] {
        for (const KVComboBox* combo :
             {&ficha->kvcmbSexoDoAnimal, &ficha->kvcmbEspeciesDeAnimais, &ficha->kvcmbRacasDeAnimais}) {
            EXPECT_EQ(combo->ListCount(), 1) << combo->Name();
            EXPECT_EQ(combo->ListIndex(), 0) << combo->Name();
        }
        EXPECT_EQ(ficha->kvcmbSexoDoAnimal.Text(), "?");
        EXPECT_EQ(ficha->kvcmbEspeciesDeAnimais.Text(), "Iguana");
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.Text(), "");
    });
    EXPECT_TRUE(Lines("create KOVA_N_EspecRacas.clsRacas").empty());
}

TEST_F(OpeningTheSimplifiedForm, StampsWhoIncludedAndAlteredIt)
{
    Prepare();
    Show(2, [&] {
        EXPECT_EQ(ficha->kvTheme.DataOfInclusion(), "Código 41 | Incluído em 19/11/2026");
        EXPECT_EQ(ficha->kvTheme.DataOfAlteration(), "");
    });
    Prepare({{"DataEHoraDaAlteracao", "20/11/2026 09:00:00"}, {"UsuarioDaAlteracao", "Ana"}});
    Show(3, [&] {
        EXPECT_EQ(ficha->kvTheme.DataOfInclusion(), "Código 41 | Incluído em 19/11/2026");
        EXPECT_EQ(ficha->kvTheme.DataOfAlteration(), "Alterado em 20/11/2026");
    });
    MakeForm();
    Show(4, [&] {
        EXPECT_EQ(ficha->kvTheme.DataOfInclusion(), "Código: 41  |  Incluído em 19/11/2026");
        EXPECT_EQ(ficha->kvTheme.DataOfAlteration(), "Alterado em 20/11/2026");
    });
}

TEST_F(OpeningTheSimplifiedForm, DimsTheShellWhileItIsOpen)
{
    Prepare();
    Show(1, [&] {
        EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela").size(), 1U);
        EXPECT_EQ(Logged("repaint").size(), 0U);
    });
    EXPECT_EQ(
        Lines("call KOVA_A_EfeitosDeTela"),
        (Strings{"call KOVA_A_EfeitosDeTela.clsFundoEscuro.Aplicar(Long& 4711, Integer& 0) -> Integer 0",
                 "call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover(Long& 4711) -> Integer 0"}));
    EXPECT_EQ(Logged(""),
              (Strings{"show frmFichaSimplificada modal", "hide frmFichaSimplificada", "repaint frmLista"}));
}

TEST_F(OpeningTheSimplifiedForm, StartsInTheCustomersName)
{
    Prepare();
    Show(1, [&] {
        auto* focused = dynamic_cast<toolkit::FormModel&>(*ficha->Formulario).Focused();
        ASSERT_TRUE(focused);
        EXPECT_EQ(focused->Design().name, "kvtxtNomeOuRazaoSocialDoCliente");
    });
    EXPECT_TRUE(Logged("focus").empty()) << "a hidden form is given no focus";
}

TEST_F(OpeningTheSimplifiedForm, FillsItsCombosOnceInTheLifeOfTheForm)
{
    Prepare();
    Show(1);
    Show(1);
    EXPECT_EQ(Lines("create KOVA_N_EspecRacas.clsEspecies").size(), 1U);
}

TEST_F(OpeningTheSimplifiedForm, HasAFrameOnTheSystemOfSquareCorners)
{
    Prepare();
    EXPECT_THROW(ficha->Formulario->Control("lshpObj"), Failure);
    script.System("windows 8");
    MakeForm();
    EXPECT_EQ(ficha->Formulario->Control("lshpObj").Kind(), WidgetKind::Shape);
    script.FailCreate("KOVA_N_SO.clsObterVersaoDoSO", Failure(429, "sem versão"));
    ficha = frmFichaSimplificada::Criar();
    ficha->Formulario->Load();
    ExpectReport("429", "frmFichaSimplificada, Form_Load, Ponto: 1\"");
}

TEST_F(OpeningTheSimplifiedForm, KeepsTheLimitsOfItsBoxes)
{
    Prepare();
    const std::pair<KVTextBox*, int> limits[] = {{&ficha->kvtxtNomeOuRazaoSocialDoCliente, 100},
                                                 {&ficha->kvtxtCanaisDeComunicacaoDoCliente, 50},
                                                 {&ficha->kvtxtNomeDoAnimal, 100},
                                                 {&ficha->kvtxtCorDoAnimal, 50},
                                                 {&ficha->kvtxtTempoDoServico, 50},
                                                 {&ficha->kvtxtObservacaoDoServico, 100}};
    for (const auto& [box, limit] : limits) {
        EXPECT_EQ(box->MaxLength(), limit) << box->Name();
        EXPECT_EQ(box->Locked(), box == &ficha->kvtxtTempoDoServico) << box->Name();
    }
    EXPECT_EQ(ficha->kvfCodigoDoServico.Style(), 2);
    EXPECT_EQ(ficha->kvfNomeDoServico.Style(), 1);
    EXPECT_EQ(ficha->kvtxtCanaisDeComunicacaoDoCliente.ToolTipText(),
              "Endereço, telefone, celular, E-mail...");
}

TEST_F(OpeningTheSimplifiedForm, FitsASmallScreen)
{
    Prepare();
    EXPECT_LE(ficha->Formulario->Width(), 1024 * 15);
    EXPECT_LE(ficha->Formulario->Height(), 728 * 15) << "a screen of 768 rows has a task bar";
    for (const Widget* widget : ficha->Formulario->Controls()) {
        if (widget->Name() == "lblMensagem")
            continue;
        EXPECT_LE(widget->Left() + widget->Width(), ficha->Formulario->ScaleWidth()) << widget->Name();
        EXPECT_LE(widget->Top() + widget->Height(), ficha->Formulario->ScaleHeight()) << widget->Name();
    }
}

TEST_F(OpeningTheSimplifiedForm, WaitsInItsMiddle)
{
    Prepare();
    InForm(1, [&] {
        const Double before = toolkit.Clock().Timer();
        ficha->ExibirOcultarpicMensagem(true);
        EXPECT_EQ(toolkit.Clock().Timer() - before, 1);
        EXPECT_EQ(ficha->picMensagem.Left(),
                  ficha->Formulario->ScaleWidth() / 2 - ficha->picMensagem.Width() / 2);
        ficha->ExibirOcultarpicMensagem(false);
        EXPECT_FALSE(ficha->picMensagem.Visible());
    });
    ficha->ExibirOcultarpicMensagem(true);
    EXPECT_FALSE(ficha->picMensagem.Visible());
}

} // namespace

} // namespace kova::agenda
