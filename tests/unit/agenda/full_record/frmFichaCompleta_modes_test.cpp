// The four modes: title, stamps, enabled states, buttons, places.

#include "tests/unit/agenda/full_record/frmFichaCompleta_fixture.hpp"

namespace kova::agenda {

namespace {

class FichaCompletaModes : public FichaCompletaTest {
protected:
    toolkit::WidgetCore& Model(const char* control)
    {
        for (const auto& widget : toolkit.FindForm(Form)->Widgets())
            if (widget->Design().name == control)
                return *widget;
        throw Failure(FailureNumber::NoSuchMember);
    }
    std::string Tip(const char* control) { return Model(control).State().toolTipText; }

    void ExpectButtons(const char* first, const char* firstTip, const char* second, const char* secondTip)
    {
        EXPECT_EQ(ficha->kvcmdSalvarFecharConfirmar.Caption(), first);
        EXPECT_EQ(Tip("kvcmdSalvarFecharConfirmar"), firstTip);
        EXPECT_EQ(ficha->kvcmdCancelarAlterar.Caption(), second);
        EXPECT_EQ(Tip("kvcmdCancelarAlterar"), secondTip);
    }
    void ExpectHeader(const char* title, const char* inclusion, const char* alteration)
    {
        EXPECT_EQ(ficha->kvTheme.Caption(), title);
        EXPECT_EQ(ficha->kvTheme.DataOfInclusion(), inclusion);
        EXPECT_EQ(ficha->kvTheme.DataOfAlteration(), alteration);
    }
    /// Names of the editing controls that are enabled, or that are not.
    Strings Editing(bool enabled)
    {
        Strings names;
        for (Widget* widget : ficha->Formulario->Controls()) {
            const auto kind = widget->Kind();
            const bool edits = kind == WidgetKind::KVComboBox || kind == WidgetKind::KVTextBox
                || kind == WidgetKind::KVDTPicker || kind == WidgetKind::KVTime || kind == WidgetKind::KVFind;
            if (edits && widget->Enabled() == enabled)
                names.push_back(widget->Name());
        }
        return names;
    }
};

TEST_F(FichaCompletaModes, Adding)
{
    Prepare();
    Show(operacao::Adicionar, [this] {
        ExpectHeader("Adicionar agendamento completo", "", "");
        ExpectButtons("Salvar", "Salvar inclusão e fechar", "Cancelar", "Cancelar inclusão e fechar");
        EXPECT_EQ(Editing(false), Strings());
        EXPECT_TRUE(ficha->lblReagendar.Visible());
        for (const KVFind* find :
             {&ficha->kvfCodigoDoCliente, &ficha->kvfApelidoOuNomeFantasiaDoCliente,
              &ficha->kvfNomeOuRazaoSocialDoCliente, &ficha->kvfEnderecoDoCliente, &ficha->kvfNomeDoAnimal,
              &ficha->kvfCodigoDoServico, &ficha->kvfNomeDoServico}) {
            EXPECT_EQ(find->Status(), 2) << find->Name();
            EXPECT_EQ(find->Text(), "") << find->Name();
        }
    });
}

TEST_F(FichaCompletaModes, Detail)
{
    Prepare();
    Show(operacao::Detalhar, [this] {
        ExpectHeader("Detalhar agendamento completo", "Código 41 | Incluído em 19/11/2026", "");
        ExpectButtons("Fechar", "Fechar detalhamento", "Alterar", "Alterar dados");
        EXPECT_EQ(Editing(true), Strings());
        EXPECT_FALSE(ficha->lblReagendar.Visible());
    });
}

TEST_F(FichaCompletaModes, Alteration)
{
    Prepare({{"DataEHoraDaAlteracao", "20/11/2026 08:10:00"}});
    Show(operacao::Alterar, [this] {
        ExpectHeader("Alterar agendamento completo", "Código 41 | Incluído em 19/11/2026",
                     "Alterado em 20/11/2026");
        ExpectButtons("Salvar", "Salvar alteração e fechar", "Cancelar", "Cancelar alteração e fechar");
        EXPECT_EQ(Editing(false), Strings());
        EXPECT_FALSE(ficha->lblReagendar.Visible());
    });
    EXPECT_TRUE(Logged("focus").empty()) << "no focus call before the form is on the screen";
}

TEST_F(FichaCompletaModes, Deletion)
{
    Prepare({{"DataEHoraDaAlteracao", "   "}});
    Show(operacao::Excluir, [this] {
        ExpectHeader("Excluir agendamento completo", "Código: 41  |  Incluído em 19/11/2026", "");
        ExpectButtons("Confirmar", "Confirmar exclusão e e fechar", "Cancelar", "Cancelar exclusão e fechar");
        EXPECT_EQ(Editing(true), Strings());
        EXPECT_FALSE(ficha->lblReagendar.Visible());
    });
}

TEST_F(FichaCompletaModes, AReturnVisitKeepsCustomerAnimalAndService)
{
    Prepare({{"NomeDoTipoDeServico", "Retorno"}});
    Show(operacao::Alterar, [this] {
        EXPECT_EQ(Editing(false),
                  (Strings{"kvfCodigoDoCliente", "kvfApelidoOuNomeFantasiaDoCliente",
                           "kvfNomeOuRazaoSocialDoCliente", "kvfEnderecoDoCliente", "kvcmbAnimal",
                           "kvcmbTiposDeServicos", "kvfCodigoDoServico", "kvfNomeDoServico"}));
    });
}

TEST_F(FichaCompletaModes, TheDetailsAlterationFocusesTheNickname)
{
    Prepare();
    Show(operacao::Detalhar, [this] {
        toolkit.ClearLog();
        EXPECT_EQ(user.Click(Form, "kvcmdCancelarAlterar"), "");
        EXPECT_EQ(Focused(), "kvfApelidoOuNomeFantasiaDoCliente");
        ExpectHeader("Alterar agendamento completo", "Código 41 | Incluído em 19/11/2026", "");
        ExpectButtons("Salvar", "Salvar alteração e fechar", "Cancelar", "Cancelar alteração e fechar");
        EXPECT_EQ(Logged("focus"), Strings{"focus frmFichaCompleta.kvfApelidoOuNomeFantasiaDoCliente"});
    });
}

TEST_F(FichaCompletaModes, TheAlterationOfAReturnVisitFocusesTheDate)
{
    Prepare({{"NomeDoTipoDeServico", "RETORNO"}});
    Show(operacao::Detalhar, [this] {
        EXPECT_EQ(user.Click(Form, "kvcmdCancelarAlterar"), "");
        EXPECT_EQ(Focused(), "kvdtpDataInicial");
    });
}

TEST_F(FichaCompletaModes, PlaceTransportBesideTheSituation)
{
    Prepare();
    for (const Integer mode : {operacao::Detalhar, operacao::Alterar, operacao::Excluir}) {
        MakeForm();
        Show(mode, [this] {
            EXPECT_EQ(ficha->kvcmbBuscar.Width(), 1095);
            EXPECT_EQ(ficha->lblLevar.Top(), ficha->lblBuscar.Top());
            EXPECT_EQ(ficha->lblLevar.Left(), 8415);
            EXPECT_EQ(ficha->kvcmbLevar.Width(), 1080);
            EXPECT_EQ(ficha->kvcmbLevar.Top(), ficha->kvcmbBuscar.Top());
            EXPECT_EQ(ficha->kvcmbLevar.Left(), 8415);
            EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Width(), 6735);
            EXPECT_TRUE(ficha->kvcmbSituacao.Visible());
            EXPECT_TRUE(ficha->lblSituacao.Visible());
        });
    }
}

TEST_F(FichaCompletaModes, AddingPutsTransportInTheSituationsPlace)
{
    Prepare();
    Show(operacao::Adicionar, [this] {
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Height(), ficha->kvcmbAnimal.Height());
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Width(), ficha->kvcmbAnimal.Width());
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Left(), ficha->kvcmbAnimal.Left());
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Top(), ficha->kvcmbAnimal.Top());
        EXPECT_EQ(ficha->kvcmbReagendar.Width(), 3610);
        EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Width(), 3000);
        EXPECT_FALSE(ficha->lblSituacao.Visible());
        EXPECT_FALSE(ficha->kvcmbSituacao.Visible());
        EXPECT_EQ(ficha->lblLevar.Top(), ficha->lblSituacao.Top());
        EXPECT_EQ(ficha->lblLevar.Left(), ficha->lblSituacao.Left());
        EXPECT_EQ(ficha->kvcmbLevar.Top(), ficha->kvcmbSituacao.Top());
        EXPECT_EQ(ficha->kvcmbLevar.Left(), ficha->kvcmbSituacao.Left());
    });
}

} // namespace

} // namespace kova::agenda
