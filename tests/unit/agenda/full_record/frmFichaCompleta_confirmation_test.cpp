// The two buttons: what is sent, and what becomes of each answer.

#include "tests/unit/agenda/full_record/frmFichaCompleta_saving_fixture.hpp"

namespace kova::agenda {

namespace {

using Strings = std::vector<std::string>;

const std::string Agenda = "KOVA_N_Agenda.clsAgenda";
const std::string Pacote = Agenda + ".AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa";

std::string Set(const std::string& member) { return "set " + Agenda + "." + member; }

class Confirming : public SavingTest {
protected:
    Confirming() { Prepare({{"Situacao", Long{3}}, {"Observacao", "nada"}}); }
};

TEST_F(Confirming, SendsANewAppointmentInTheFixedOrderWithoutANumber)
{
    EXPECT_TRUE(Save());
    EXPECT_EQ(AtTheAgenda(),
              (Strings{
                  "create " + Agenda,
                  Set("Situacao Long 1"),
                  Set("CodigoDoFuncionario Long 7"),
                  Set(R"(DataInicial Text "23/11/2026")"),
                  Set(R"(HoraInicial Text "09:00")"),
                  Set(R"(DataFinal Text "23/11/2026")"),
                  Set(R"(HoraFinal Text "10:30")"),
                  Set("CodigoDoServico Double 8"),
                  Set("CodigoDoCliente Double 12"),
                  Set("CodigoDoAnimal Long 3"),
                  Set("NumeroDoTipoDeServico Long 4"),
                  Set(R"(Observacao Text "usa perfume")"),
                  Set("TransporteBuscar Long 0"),
                  Set("TransporteLevar Long 0"),
                  Set("CriadaListaDasDatasEHorasSelecionadas Boolean False"),
                  Set("QuantidadeDeReagendamentos Long 0"),
                  Set("FrequenciaDeReagendamento Integer -1"),
                  Set("TipoDoAgendamento Long 0"),
                  Set("DadosValidados Boolean False"),
                  Set("DomingoOuFeriado Boolean False"),
                  Set("DadosDoUsuario Object <user>"),
                  "call " + Agenda + ".Adicionar() -> Integer 0",
                  "get " + Agenda + ".RegistroPercenteAUmPacoteDeBanhoETosa -> Boolean False",
                  "release " + Agenda,
              }));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Confirming, SendsNumberAndChosenSituationWhereItAltersOrDeletes)
{
    const std::pair<Integer, const char*> calls[]{{operacao::Alterar, ".Alterar()"},
                                                  {operacao::Excluir, ".Excluir()"}};
    for (const auto& [mode, call] : calls) {
        EXPECT_TRUE(Save(mode));
        ASSERT_GT(Writes().size(), 2U);
        EXPECT_EQ(Writes()[0], Set("NumeroDeLancamento Double 41"));
        EXPECT_EQ(Writes()[1], Set("Situacao Long 3"));
        EXPECT_EQ(Written("Observacao"), R"(Text "nada")");
        EXPECT_EQ(Written("TransporteBuscar"), "Long -1");
        EXPECT_EQ(Lines("call " + Agenda), (Strings{"call " + Agenda + call + " -> Integer 0"}));
        EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    }
}

TEST_F(Confirming, SendsZeroWhereNothingIsSelected)
{
    EXPECT_TRUE(Run(operacao::Adicionar, [this] {
        ficha->kvcmbFuncionarios.ListIndex(-1);
        ficha->kvcmbAnimal.Text("");
        ficha->Estado.IgnorarEventoDeCampo = true;
        ficha->kvcmbTiposDeServicos.ListIndex(-1);
        ficha->kvfCodigoDoCliente.Text("");
        ficha->kvfCodigoDoServico.Text("x");
        lines.clear();
        PressSave();
    }));
    EXPECT_EQ(Written("CodigoDoFuncionario"), "Integer 0");
    EXPECT_EQ(Written("CodigoDoAnimal"), "Integer 0");
    EXPECT_EQ(Written("NumeroDoTipoDeServico"), "Integer 0");
    EXPECT_EQ(Written("CodigoDoCliente"), "Double 0");
    EXPECT_EQ(Written("CodigoDoServico"), "Double 0");
}

TEST_F(Confirming, SendsHowOftenTheBookingIsRepeated)
{
    const std::pair<const char*, const char*> numbers[]{{"12", "Long 12"}, {"", "Long 0"}};
    for (const auto& [typed, sent] : numbers) {
        EXPECT_TRUE(Run(operacao::Adicionar, [&, number = typed] {
            EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendar", "Sim"), "");
            EXPECT_EQ(user.Type("frmFichaCompleta", "kvnumNumeroDeSemanas", number), "");
            EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendarPor", "Quinzena(s)"), "");
            PressSave();
        }));
        EXPECT_EQ(Written("QuantidadeDeReagendamentos"), sent);
        EXPECT_EQ(Written("FrequenciaDeReagendamento"), "Integer 1");
        EXPECT_EQ(Written("CriadaListaDasDatasEHorasSelecionadas"), "Boolean False");
    }
}

TEST_F(Confirming, ClosesADetailViewWithoutTheBusinessTier)
{
    EXPECT_TRUE(Save(operacao::Detalhar));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_TRUE(AtTheAgenda().empty());
}

TEST_F(Confirming, ReportsATechnicalFailureAndCloses)
{
    WriteAnswers(
        "Adicionar", 1,
        {{"NumeroDoErro", Long{7}}, {"DescricaoDoErro", "sem conexão"}, {"LocalDoErro", "servidor"}});
    ficha->Estado.OperacaoConcluida = true;
    EXPECT_TRUE(Save());
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
    EXPECT_EQ(Reports(),
              (Strings{R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 7, Text& "sem conexão", )"
                       R"(Text& "servidor", Text& "Kova") -> Integer 0)"}));
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Confirming, TellsOfARefusalInACriticalBoxAndCloses)
{
    WriteAnswers("Excluir", 3, {{"DescricaoDaFalha", "O agendamento não existe mais."}});
    Answers({Reply::Ok});
    ficha->Estado.OperacaoConcluida = true;
    EXPECT_TRUE(Save(operacao::Excluir));
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
    EXPECT_EQ(Boxes(), (Strings{R"(box critical "Kova" "O agendamento não existe mais." -> ok)"}));
}

TEST_F(Confirming, ClosesOnAnAnswerWithoutAMeaningAndLeavesTheResultAsItWas)
{
    for (const bool before : {false, true}) {
        WriteAnswers("Adicionar", before ? Integer{4} : Integer{-1});
        ficha->Estado.OperacaoConcluida = before;
        EXPECT_TRUE(Save());
        EXPECT_EQ(ficha->Estado.OperacaoConcluida, before);
        EXPECT_TRUE(Boxes().empty());
        EXPECT_TRUE(Lines("get ").empty());
    }
}

TEST_F(Confirming, ReportsABrokenCallAndStaysOpen)
{
    script.Fail(Agenda + ".Adicionar", Failure(5, "quebrou"));
    EXPECT_FALSE(Save());
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmFichaCompleta, kvcmdSalvarFecharConfirmar_Click, Ponto: 3"),
              std::string::npos);
    EXPECT_EQ(Lines("release " + Agenda).size(), 1U);
}

TEST_F(Confirming, ReportsACallThatBreaksBetweenTheWriteAndThePackageAndStaysOpen)
{
    for (const std::string& broken : {Agenda + ".RegistroPercenteAUmPacoteDeBanhoETosa", Pacote}) {
        SCOPED_TRACE(broken);
        WriteAnswers("Alterar", 0, {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}});
        script.Fail(broken, Failure(5, "quebrou"));
        if (broken == Pacote)
            Answers({Reply::Yes});
        EXPECT_FALSE(Save(operacao::Alterar));
        EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
        EXPECT_EQ(Lines("call " + Agenda + ".Alterar(").size(), 1U) << "it is not written again";
        ASSERT_EQ(Reports().size(), 1U);
        EXPECT_NE(Reports()[0].find(", frmFichaCompleta, kvcmdSalvarFecharConfirmar_Click, Ponto: 4"),
                  std::string::npos);
        EXPECT_EQ(Lines("release " + Agenda).size(), 1U);
    }
}

TEST_F(Confirming, ReportsDatesThatWereNeverPicked)
{
    EXPECT_FALSE(Run(operacao::Adicionar, [this] {
        EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendar", "Sim"), "");
        ficha->Estado.IgnorarEventoDeCampo = true;
        EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendarPor", "Selecionar datas"), "");
        PressSave();
    }));
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 9,"), std::string::npos);
}

TEST_F(Confirming, AsksForThePackageInTheWordOfTheSituationThatWasSent)
{
    const struct {
        Integer mode;
        const char* write;
        const char* word;
        const char* argument;
    } cases[]{
        {operacao::Adicionar, "Adicionar", "'AGENDADO'", "(Long 1)"},
        {operacao::Alterar, "Alterar", "'CANCELADO'", "(Long 3)"},
        {operacao::Excluir, "Excluir", "'CANCELADO'", "(Long 3)"},
    };
    for (const auto& one : cases) {
        WriteAnswers(one.write, 0, {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}});
        Answers({Reply::Yes});
        EXPECT_TRUE(Save(one.mode));
        EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
        EXPECT_EQ(
            Boxes(),
            (Strings{
                std::string(
                    R"(box question "Kova" "Este agendamento pertence a um pacote de banho e tosa.\r\n\r\n)")
                + "Deseja alterar a situação para " + one.word
                + R"( de TODOS os agendamentos deste pacote que não foram atendidos?" -> yes)"}));
        EXPECT_EQ(Lines("call " + Pacote), (Strings{"call " + Pacote + one.argument + " -> Integer 0"}));
    }
}

TEST_F(Confirming, LeavesThePackageAloneOnNo)
{
    WriteAnswers("Alterar", 0, {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}});
    Answers({Reply::No});
    EXPECT_TRUE(Save(operacao::Alterar));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_TRUE(Lines("call " + Pacote).empty());
}

TEST_F(Confirming, TellsOfAPackageThatCouldNotBeChanged)
{
    WriteAnswers("Alterar", 0, {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}});
    script.Answer(Pacote, {.result = Integer{1}});
    Answers({Reply::Yes, Reply::Ok});
    EXPECT_TRUE(Save(operacao::Alterar));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    ASSERT_EQ(Boxes().size(), 2U);
    EXPECT_EQ(Boxes()[1],
              R"(box information "Kova" "Não foi possível alterar a situação dos demais agendamentos deste )"
              R"(pacote.\r\n\r\nTente novamente mais tarde." -> ok)");
}

TEST_F(Confirming, LeavesByTheSecondButton)
{
    for (const Integer mode : {operacao::Adicionar, operacao::Alterar, operacao::Excluir}) {
        ficha->Estado.OperacaoConcluida = true;
        EXPECT_TRUE(Run(mode, [this] {
            ficha->lblDataHoraInicial.ForeColor(cores::RotuloRecusado);
            EXPECT_EQ(user.Click("frmFichaCompleta", "kvcmdCancelarAlterar"), "");
        }));
        EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
        EXPECT_EQ(ficha->lblDataHoraInicial.ForeColor(), cores::Rotulo);
        EXPECT_TRUE(AtTheAgenda().empty());
    }
}

TEST_F(Confirming, TurnsADetailViewIntoAnAlterationUnderTheSameShow)
{
    EXPECT_TRUE(Run(operacao::Detalhar, [this] {
        EXPECT_EQ(user.Click("frmFichaCompleta", "kvcmdCancelarAlterar"), "");
        EXPECT_TRUE(ficha->Formulario->Visible());
        EXPECT_EQ(ficha->Estado.TipoDeOperacao, operacao::Alterar);
        EXPECT_TRUE(ficha->kvtimHoraInicial.Enabled());
        EXPECT_TRUE(Logged("show ").empty());
        EXPECT_TRUE(Lines("create KOVA_A_EfeitosDeTela").empty()) << "neither dimmed again nor undimmed";
        PressSave();
    }));
    EXPECT_EQ(Lines("call " + Agenda + ".Alterar").size(), 1U);
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover").size(), 1U);
}

} // namespace

} // namespace kova::agenda
