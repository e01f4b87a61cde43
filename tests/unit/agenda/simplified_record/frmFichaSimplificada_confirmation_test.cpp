// The two buttons of the simplified record form.

#include "tests/unit/agenda/simplified_record/frmFichaSimplificada_fixture.hpp"

namespace kova::agenda {

namespace {

const std::string Agenda = "KOVA_N_Agenda.clsAgenda";

class ConfirmingTheSimplifiedForm : public FichaSimplificadaTest {
protected:
    void Save() { EXPECT_EQ(user.Click(Form, "kvcmdSalvarFecharConfirmar"), ""); }
    void Cancel() { EXPECT_EQ(user.Click(Form, "kvcmdCancelarAlterar"), ""); }

    /// What was set on the business object, without its class.
    Strings Members() const
    {
        Strings members;
        for (const std::string& line : Lines("set " + Agenda + "."))
            members.push_back(line.substr(("set " + Agenda + ".").size()));
        return members;
    }
    /// The write is refused because of a field.
    void Refuse(const std::string& field)
    {
        script.Answer(Agenda + ".Adicionar",
                      {.result = Integer{2},
                       .members = {{"NomeDoCampoValidado", field}, {"DescricaoDaFalha", "Informe."}}});
        Box();
    }
    Colour ColourOf(const char* label) const
    {
        return dynamic_cast<Label&>(ficha->Formulario->Control(label)).ForeColor();
    }
};

TEST_F(ConfirmingTheSimplifiedForm, SendsNothingFromADetailView)
{
    Prepare();
    InForm(2, [&] { Save(); });
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_FALSE(ficha->Formulario->Visible());
    EXPECT_TRUE(Lines("create " + Agenda).empty());
}

TEST_F(ConfirmingTheSimplifiedForm, AddsWhatWasTypedInItsOrder)
{
    Prepare();
    InForm(1, [&] {
        user.Type(Form, "kvtxtNomeOuRazaoSocialDoCliente", " Zé da Silva ");
        user.Type(Form, "kvtxtCanaisDeComunicacaoDoCliente", " 0000 ");
        user.Type(Form, "kvtxtNomeDoAnimal", " Rex ");
        user.Choose(Form, "kvcmbSexoDoAnimal", "Fêmea");
        user.Choose(Form, "kvcmbEspeciesDeAnimais", "Gato");
        user.Choose(Form, "kvcmbRacasDeAnimais", "Persa");
        user.Type(Form, "kvtxtCorDoAnimal", " Preto ");
        user.Choose(Form, "kvcmbTiposDeServicos", "Banho e tosa");
        ficha->kvfCodigoDoServico.Text("8");
        ficha->kvtimHoraInicial.Text("14:00");
        ficha->kvdtpDataFinal.Text("20/11/2026");
        ficha->kvtimHoraFinal.Text("15:00");
        user.Choose(Form, "kvcmbFuncionarios", "Beto");
        user.Type(Form, "kvtxtObservacaoDoServico", " Arisco ");
        Save();
    });
    EXPECT_EQ(
        Members(),
        (Strings{"Situacao Long 1", "CodigoDoFuncionario Long 9", R"(DataInicial Text "20/11/2026")",
                 R"(HoraInicial Text "14:00")", R"(DataFinal Text "20/11/2026")", R"(HoraFinal Text "15:00")",
                 "CodigoDoServico Double 8", R"(NomeOuRazaoSocialDoCliente Text "Zé da Silva")",
                 R"(CanaisdeComunicacaoDoCliente Text "0000")", R"(NomeDoAnimal Text "Rex")",
                 R"(SexoDoAnimal Text "F")", R"(EspecieDoAnimal Text "Gato")", R"(RacaDoAnimal Text "Persa")",
                 R"(CorDoAnimal Text "Preto")", "NumeroDoTipoDeServico Long 4", R"(Observacao Text "Arisco")",
                 "TipoDoAgendamento Long 1", "DadosDoUsuario Object <user>"}));
    EXPECT_EQ(Lines("call " + Agenda), (Strings{"call " + Agenda + ".Adicionar() -> Integer 0"}));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_FALSE(ficha->Formulario->Visible());
}

TEST_F(ConfirmingTheSimplifiedForm, SendsNothingSelectedAsNothing)
{
    Prepare();
    ficha->kvcmbTiposDeServicos.ListIndex(-1);
    InForm(1, [&] {
        ficha->kvcmbTiposDeServicos.ListIndex(-1);
        Save();
    });
    const Strings members = Members();
    const auto has = [&](const char* line) {
        return std::find(members.begin(), members.end(), line) != members.end();
    };
    EXPECT_TRUE(has("CodigoDoFuncionario Integer 0"));
    EXPECT_TRUE(has("NumeroDoTipoDeServico Integer 0"));
    EXPECT_TRUE(has(R"(SexoDoAnimal Text "")"));
    EXPECT_TRUE(has("CodigoDoServico Double 0"));
    EXPECT_TRUE(has("Situacao Long 1")) << "whatever the combo shows";
}

TEST_F(ConfirmingTheSimplifiedForm, AltersUnderTheAppointmentsNumber)
{
    Prepare();
    InForm(3, [&] {
        user.Choose(Form, "kvcmbSituacao", "Atendido");
        Save();
    });
    const Strings members = Members();
    ASSERT_EQ(members.size(), 19U);
    EXPECT_EQ(members[0], "NumeroDeLancamento Double 41");
    EXPECT_EQ(members[1], "Situacao Long 2");
    EXPECT_EQ(members[11], R"(SexoDoAnimal Text "M")");
    EXPECT_EQ(Lines("call " + Agenda), (Strings{"call " + Agenda + ".Alterar() -> Integer 0"}));
}

TEST_F(ConfirmingTheSimplifiedForm, WritesEveryMemberForADeletionToo)
{
    Prepare();
    InForm(4, [&] { Save(); });
    EXPECT_EQ(Members().size(), 19U);
    EXPECT_EQ(Lines("call " + Agenda), (Strings{"call " + Agenda + ".Excluir() -> Integer 0"}));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
}

TEST_F(ConfirmingTheSimplifiedForm, LacksWhatOnlyTheFullRecordHas)
{
    Prepare();
    InForm(1, [&] { Save(); });
    for (const char* member : {"NumeroDeLancamento", "CodigoDoCliente", "CodigoDoAnimal", "TransporteBuscar",
                               "TransporteLevar", "QuantidadeDeReagendamentos", "FrequenciaDeReagendamento",
                               "CriadaListaDasDatasEHorasSelecionadas", "DadosValidados", "DomingoOuFeriado"})
        EXPECT_TRUE(Lines("set " + Agenda + "." + member).empty()) << member;
    EXPECT_TRUE(Lines("get " + Agenda).empty()) << "no package question";
}

TEST_F(ConfirmingTheSimplifiedForm, CutsSpeciesAndBreedToFiftyCharacters)
{
    const std::string longName(60, 'x');
    Prepare({{"NomeDaEspecie", "é" + longName}, {"NomeDaRaca", longName}});
    InForm(3, [&] { Save(); });
    EXPECT_EQ(Lines("set " + Agenda + ".EspecieDoAnimal"),
              (Strings{"set " + Agenda + ".EspecieDoAnimal Text \"é" + std::string(49, 'x') + "\""}));
    EXPECT_EQ(Lines("set " + Agenda + ".RacaDoAnimal"),
              (Strings{"set " + Agenda + ".RacaDoAnimal Text \"" + std::string(50, 'x') + "\""}));
}

TEST_F(ConfirmingTheSimplifiedForm, StoresASexOfAnotherNameAsNone)
{
    Prepare({{"SexoDoAnimal", "Indefinido"}});
    InForm(3, [&] { Save(); });
    EXPECT_EQ(Lines("set " + Agenda + ".SexoDoAnimal"),
              (Strings{"set " + Agenda + R"(.SexoDoAnimal Text "")"}));
}

TEST_F(ConfirmingTheSimplifiedForm, DropsItsObjectBeforeItHides)
{
    Prepare();
    Strings order;
    toolkit.OnLine([&](const std::string& line) { lines.push_back(line); });
    InForm(1, [&] { Save(); });
    toolkit.OnLine(nullptr);
    const auto place = [&](const std::string& line) { return std::find(lines.begin(), lines.end(), line); };
    EXPECT_LT(place("release " + Agenda), place("hide frmFichaSimplificada"));
}

TEST_F(ConfirmingTheSimplifiedForm, PassesOnATechnicalFailureAndHides)
{
    Prepare();
    AnswerFailure(Agenda + ".Adicionar");
    InForm(1, [&] {
        ficha->Estado.OperacaoConcluida = true;
        Save();
    });
    EXPECT_EQ(Reports(), (Strings{ReportOfFailure()}));
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
    EXPECT_FALSE(ficha->Formulario->Visible());
}

TEST_F(ConfirmingTheSimplifiedForm, ShowsARefusalInACriticalBoxAndHides)
{
    Prepare();
    script.Answer(
        Agenda + ".Alterar",
        {.result = Integer{3}, .members = {{"DescricaoDaFalha", "O agendamento não existe mais."}}});
    Box();
    InForm(3, [&] { Save(); });
    EXPECT_EQ(Boxes(), (Strings{R"(box critical "Kova" "O agendamento não existe mais." -> ok)"}));
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
    EXPECT_FALSE(ficha->Formulario->Visible());
    EXPECT_TRUE(Lines("get " + Agenda + ".NomeDoCampoValidado").empty());
}

TEST_F(ConfirmingTheSimplifiedForm, HidesWithoutAWordOnEveryOtherAnswer)
{
    for (const Integer answer : {-1, 4, 99}) {
        Prepare();
        script.Answer(Agenda + ".Adicionar", {.result = answer});
        InForm(1, [&] {
            ficha->Estado.OperacaoConcluida = true;
            Save();
        });
        EXPECT_TRUE(ficha->Estado.OperacaoConcluida) << "keeps its value";
        EXPECT_FALSE(ficha->Formulario->Visible());
    }
    EXPECT_TRUE(Boxes().empty());
    EXPECT_TRUE(Reports().empty());
}

TEST_F(ConfirmingTheSimplifiedForm, MarksTheRefusedFieldAndStaysOpen)
{
    const struct {
        const char* field;
        const char* label;
        const char* focus;
    } table[] = {
        {"NomeOuRazaoSocialDoCliente", "lblNomeOuRazaoSocialDoCliente", "kvtxtNomeOuRazaoSocialDoCliente"},
        {"NomeDoAnimal", "lblNomeDoAnimal", "kvtxtNomeDoAnimal"},
        {"NumeroDoTipoDeServico", "lblTipoDoServico", "kvcmbTiposDeServicos"},
        {"CodigoDoServico", "lblNomeDoServico", "kvfNomeDoServico"},
        {"DataInicial", "lblDataHoraInicial", "kvdtpDataInicial"},
        {"HoraInicial", "lblDataHoraInicial", "kvtimHoraInicial"},
        {"DataFinal", "lblDataHoraFinal", "kvdtpDataFinal"},
        {"HoraFinal", "lblDataHoraFinal", "kvtimHoraFinal"},
        {"CodigoDoFuncionario", "lblNomeDoFuncionario", "kvcmbFuncionarios"},
        {"Situacao", "lblSituacao", "kvcmbSituacao"},
    };
    Prepare();
    InForm(1, [&] {
        for (const auto& row : table) {
            Forget();
            Refuse(row.field);
            Save();
            EXPECT_TRUE(ficha->Formulario->Visible()) << row.field;
            EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
            EXPECT_EQ(Logged("focus"), (Strings{std::string("focus frmFichaSimplificada.") + row.focus}));
            EXPECT_EQ(Boxes(), (Strings{Information("Informe.")}));
            for (const auto& other : table) {
                const bool same = std::string(other.label) == row.label;
                EXPECT_EQ(ColourOf(other.label), same ? 255 : 4802889) << row.field << " " << other.label;
            }
        }
    });
}

TEST_F(ConfirmingTheSimplifiedForm, MarksNothingForAFieldThatItDoesNotHave)
{
    Prepare();
    InForm(1, [&] {
        Refuse("NomeDoAnimal");
        Save();
        Forget();
        Refuse("DomingoOuFeriado");
        Save();
        EXPECT_EQ(Boxes(), (Strings{Information("Informe.")}));
        EXPECT_EQ(ColourOf("lblNomeDoAnimal"), 4802889);
        EXPECT_TRUE(Logged("focus").empty());
        EXPECT_TRUE(ficha->Formulario->Visible());
    });
}

TEST_F(ConfirmingTheSimplifiedForm, LeavesHeadsAndLegendInTheirColour)
{
    Prepare();
    const char* const heads[] = {"lblCliente", "lblAnimal", "lblServico",
                                 "lblObservacaoDeCamposObrigatorios"};
    for (const char* head : heads)
        dynamic_cast<Label&>(ficha->Formulario->Control(head)).ForeColor(123);
    InForm(1, [&] {
        Refuse("NomeDoAnimal");
        Save();
    });
    for (const char* head : heads)
        EXPECT_EQ(ColourOf(head), 123) << head;
}

TEST_F(ConfirmingTheSimplifiedForm, MaySaveAfterARefusal)
{
    Prepare();
    InForm(1, [&] {
        Refuse("NomeDoAnimal");
        Save();
        Save();
    });
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_FALSE(ficha->Formulario->Visible());
}

TEST_F(ConfirmingTheSimplifiedForm, ReportsAFailureAndStaysOpen)
{
    Prepare();
    InForm(1, [&] {
        script.Fail(Agenda + ".Observacao", Failure(438, "sem membro"));
        Save();
        EXPECT_TRUE(ficha->Formulario->Visible());
    });
    ExpectReport("438", "frmFichaSimplificada, kvcmdSalvarFecharConfirmar_Click, Ponto: 3\"");
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
}

TEST_F(ConfirmingTheSimplifiedForm, BacksOutOfAddingAlteringAndDeleting)
{
    for (const Integer mode : {1, 3, 4}) {
        Prepare();
        InForm(mode, [&] {
            ficha->Estado.OperacaoConcluida = true;
            Cancel();
            EXPECT_FALSE(ficha->Formulario->Visible()) << mode;
        });
        EXPECT_FALSE(ficha->Estado.OperacaoConcluida) << mode;
        EXPECT_TRUE(Lines("create " + Agenda).empty());
    }
}

TEST_F(ConfirmingTheSimplifiedForm, BacksOutByEscape)
{
    Prepare();
    InForm(1, [&] {
        EXPECT_EQ(user.PressKey(Form, toolkit::FormKey::Escape), "");
        EXPECT_FALSE(ficha->Formulario->Visible());
    });
}

TEST_F(ConfirmingTheSimplifiedForm, PutsMarkedLabelsBackWhenTheUserBacksOut)
{
    Prepare();
    InForm(1, [&] {
        Refuse("NomeDoAnimal");
        Save();
        Cancel();
    });
    EXPECT_EQ(ColourOf("lblNomeDoAnimal"), 4802889);
}

TEST_F(ConfirmingTheSimplifiedForm, TurnsADetailViewIntoAnAlterationUnderTheSameShow)
{
    Prepare();
    Show(2, [&] {
        Cancel();
        EXPECT_TRUE(ficha->Formulario->Visible());
        EXPECT_EQ(ficha->Estado.TipoDeOperacao, 3);
        EXPECT_EQ(ficha->kvTheme.Caption(), "Alterar agendamento completo");
        EXPECT_TRUE(ficha->kvtxtNomeDoAnimal.Enabled());
        EXPECT_EQ(ficha->kvcmdCancelarAlterar.ToolTipText(), "Cancelar alteração e fechar");
        EXPECT_EQ(ficha->kvcmbRacasDeAnimais.Text(), "Siamês");
        EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvtxtNomeOuRazaoSocialDoCliente"}));
        Save();
    });
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_EQ(Logged("show"), (Strings{"show frmFichaSimplificada modal"}));
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela").size(), 2U) << "dimmed once, and once taken away";
    EXPECT_EQ(Logged("repaint").size(), 1U);
}

TEST_F(ConfirmingTheSimplifiedForm, ReloadsTheRowWhenADetailViewIsAltered)
{
    Prepare();
    Show(2, [&] {
        ficha->kvtxtNomeDoAnimal.Text("Totó");
        Cancel();
        EXPECT_EQ(ficha->kvtxtNomeDoAnimal.Text(), "Rex");
    });
}

TEST_F(ConfirmingTheSimplifiedForm, ReportsAFailedTurnUnderTheFullFormsTag)
{
    Prepare();
    struct Failing : toolkit::AccessObserver {
        void Read(const toolkit::MemberAccess&) override { }
        void Write(const toolkit::MemberAccess& access, const Value&) override
        {
            if (access.member == "ForeColor")
                throw Failure(5, "falha");
        }
        void Call(const toolkit::MemberAccess&, const Value&) override { }
    } failing;
    InForm(2, [&] {
        toolkit.Observer(&failing);
        Cancel();
        toolkit.Observer(nullptr);
    });
    ExpectReport("5", "frmFichaCompleta, kvcmdCancelarAlterar_Click, Ponto: 1\"");
}

TEST_F(ConfirmingTheSimplifiedForm, MayBeClosedByItsWindow)
{
    Prepare();
    Show(3, [&] { EXPECT_EQ(user.CloseForm(Form), ""); });
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela").size(), 2U);
    EXPECT_TRUE(Reports().empty());
}

} // namespace

} // namespace kova::agenda
