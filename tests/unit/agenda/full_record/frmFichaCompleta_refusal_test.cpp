// A write that the business tier refuses for one of its fields, a Sunday or a holiday among them.

#include "tests/unit/agenda/full_record/frmFichaCompleta_saving_fixture.hpp"

namespace kova::agenda {

namespace {

using Strings = std::vector<std::string>;

const std::string Agenda = "KOVA_N_Agenda.clsAgenda";
const std::string Pacote = Agenda + ".AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa";
const std::string Sunday = R"(box question "Kova" "A data 22/11/2026 é um domingo. Confirma o agendamento?")";
const std::string NextWorkingDay = R"(box question "Kova" "Gostaria de reagendar para o próximo dia útil?")";

class Refused : public SavingTest {
protected:
    Refused() { Prepare({{"DataInicial", "23/11/2026"}, {"DataFinal", "23/11/2026"}}); }

    void Refuse(const char* write, const char* field, const char* why = "Motivo.",
                std::map<std::string, Value> members = {})
    {
        members["NomeDoCampoValidado"] = field;
        members["DescricaoDaFalha"] = why;
        WriteAnswers(write, 2, std::move(members));
    }
    void RefuseTheSunday(const char* write, bool package = false)
    {
        Refuse(write, "DomingoOuFeriado", "A data 22/11/2026 é um domingo.",
               {{"RegistroPercenteAUmPacoteDeBanhoETosa", package}});
    }
    void SecondWriteIsInAPackage(const char* write)
    {
        WriteAnswers(write, 0, {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}});
    }

    /// Names of the labels that are red.
    Strings Red() const
    {
        Strings names;
        for (Widget* control : ficha->Formulario->Controls()) {
            const auto* label = As<Label>(*control);
            if (label && label->ForeColor() == cores::RotuloRecusado)
                names.push_back(label->Name());
        }
        return names;
    }
    /// What was set after the first write.
    Strings SetForTheSecondWrite() const
    {
        const Strings writes = Writes();
        return {writes.begin() + 20, writes.end()};
    }
    Strings Calls() const { return Lines("call " + Agenda); }
};

TEST_F(Refused, MarksTheFieldAndGivesItTheFocus)
{
    const struct {
        const char* name;
        const char* label;
        const char* focus;
    } rows[]{
        {"CodigoDoCliente", "lblApelidoOuNomeFantasiaDoCliente", "kvfApelidoOuNomeFantasiaDoCliente"},
        {"CodigoDoAnimal", "lblNomeDoAnimal", "kvcmbAnimal"},
        {"NumeroDoTipoDeServico", "lblTipoDoServico", "kvcmbTiposDeServicos"},
        {"CodigoDoServico", "lblNomeDoServico", "kvfNomeDoServico"},
        {"DataInicial", "lblDataHoraInicial", "kvdtpDataInicial"},
        {"HoraInicial", "lblDataHoraInicial", "kvtimHoraInicial"},
        {"DataFinal", "lblDataHoraFinal", "kvdtpDataFinal"},
        {"HoraFinal", "lblDataHoraFinal", "kvtimHoraFinal"},
        {"CodigoDoFuncionario", "lblNomeDoFuncionario", "kvcmbFuncionarios"},
        {"Situacao", "lblSituacao", "kvcmbSituacao"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Refuse("Alterar", row.name);
        Answers({Reply::Ok});
        ficha->Estado.OperacaoConcluida = true;
        Strings red;
        EXPECT_FALSE(Run(operacao::Alterar, [&] {
            PressSave();
            red = Red();
        }));
        EXPECT_EQ(red, (Strings{row.label})) << "the field of the former refusal is normal again";
        EXPECT_EQ(FocusedByCode(), (Strings{std::string("focus frmFichaCompleta.") + row.focus}));
        EXPECT_EQ(Boxes(), (Strings{R"(box information "Kova" "Motivo." -> ok)"}));
        EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
        EXPECT_EQ(Lines("release " + Agenda).size(), 1U);
    }
}

TEST_F(Refused, ShowsTheReasonOfAFieldThatTheFormDoesNotKnow)
{
    Refuse("Adicionar", "Outro");
    Answers({Reply::Ok});
    EXPECT_FALSE(Run(operacao::Adicionar, [this] {
        PressSave();
        EXPECT_TRUE(Red().empty());
        EXPECT_TRUE(FocusedByCode().empty());
    }));
    EXPECT_EQ(Boxes(), (Strings{R"(box information "Kova" "Motivo." -> ok)"}));
}

TEST_F(Refused, LeavesTheSectionHeadsAndTheLegendInTheirColours)
{
    Refuse("Adicionar", "Outro");
    Answers({Reply::Ok});
    EXPECT_FALSE(Run(operacao::Adicionar, [this] {
        Label* const kept[]{&ficha->lblCliente, &ficha->lblAnimal, &ficha->lblServico,
                            &ficha->lblObservacaoDeCamposObrigatorios};
        for (Label* label : kept)
            label->ForeColor(1234);
        ficha->lblLevar.ForeColor(1234);
        PressSave();
        for (const Label* label : kept)
            EXPECT_EQ(label->ForeColor(), 1234) << label->Name();
        EXPECT_EQ(ficha->lblLevar.ForeColor(), cores::Rotulo);
    }));
}

TEST_F(Refused, KeepsASundayOnYes)
{
    RefuseTheSunday("Adicionar", true);
    SecondWriteIsInAPackage("Adicionar");
    Answers({Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Boxes(), (Strings{Sunday + " -> yes"})) << "adding asks for no package";
    EXPECT_EQ(SetForTheSecondWrite(),
              (Strings{"set " + Agenda + ".DadosValidados Boolean True",
                       "set " + Agenda + ".DomingoOuFeriado Boolean False"}));
    EXPECT_EQ(Calls(),
              (Strings{"call " + Agenda + ".Adicionar() -> Integer 2",
                       "call " + Agenda + ".Adicionar() -> Integer 0"}));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_TRUE(Red().empty());
}

TEST_F(Refused, HasASundayMovedWhereTheUserWantsTheNextWorkingDay)
{
    RefuseTheSunday("Adicionar");
    Answers({Reply::No, Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Boxes(), (Strings{Sunday + " -> no", NextWorkingDay + " -> yes"}));
    EXPECT_EQ(SetForTheSecondWrite(),
              (Strings{"set " + Agenda + ".DadosValidados Boolean True",
                       "set " + Agenda + ".DomingoOuFeriado Boolean True"}));
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
}

TEST_F(Refused, StaysOpenOnASundayThatIsNeitherKeptNorMoved)
{
    for (const bool before : {false, true}) {
        RefuseTheSunday("Adicionar");
        Answers({Reply::No, Reply::No});
        ficha->Estado.OperacaoConcluida = before;
        EXPECT_FALSE(Save());
        EXPECT_EQ(ficha->Estado.OperacaoConcluida, before);
        EXPECT_EQ(FocusedByCode(), (Strings{"focus frmFichaCompleta.kvdtpDataInicial"}));
        EXPECT_EQ(Calls().size(), 1U);
        EXPECT_EQ(Lines("release " + Agenda).size(), 1U);
    }
}

TEST_F(Refused, DoesNotLookAtTheSecondAnswer)
{
    RefuseTheSunday("Adicionar");
    WriteAnswers("Adicionar", 1, {{"NumeroDoErro", Long{7}}});
    Answers({Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(Refused, DoesNotEvenConvertTheSecondAnswer)
{
    RefuseTheSunday("Adicionar");
    script.Answer(Agenda + ".Adicionar", {.result = Null{}});
    Answers({Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(Refused, OffersToCancelThePackageWhereItAlters)
{
    const std::string question =
        R"(box question "Kova" "Este agendamento pertence a um pacote de banho e tosa.\r\n\r\n)"
        R"(Deseja cancelar TODOS os agendamentos deste pacote que não foram atendidos?")";
    RefuseTheSunday("Alterar");
    SecondWriteIsInAPackage("Alterar");
    Answers({Reply::Yes, Reply::Yes});
    EXPECT_TRUE(Save(operacao::Alterar));
    EXPECT_EQ(Boxes(), (Strings{Sunday + " -> yes", question + " -> yes"}));
    EXPECT_EQ(Calls(),
              (Strings{"call " + Agenda + ".Alterar() -> Integer 2",
                       "call " + Agenda + ".Alterar() -> Integer 0", "call " + Pacote + "() -> Integer 0"}));

    RefuseTheSunday("Alterar");
    SecondWriteIsInAPackage("Alterar");
    Answers({Reply::Yes, Reply::No});
    EXPECT_TRUE(Save(operacao::Alterar));
    EXPECT_EQ(Boxes().back(), question + " -> no");
    EXPECT_TRUE(Lines("call " + Pacote).empty());
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
}

TEST_F(Refused, TellsOfAPackageThatCouldNotBeCancelled)
{
    RefuseTheSunday("Alterar");
    SecondWriteIsInAPackage("Alterar");
    script.Answer(Pacote, {.result = Integer{3}});
    Answers({Reply::Yes, Reply::Yes, Reply::Ok});
    EXPECT_TRUE(Save(operacao::Alterar));
    ASSERT_EQ(Boxes().size(), 3U);
    EXPECT_EQ(Boxes()[2],
              R"(box information "Kova" "Não foi possível alterar a situação dos demais agendamentos deste )"
              R"(pacote.\r\n\r\nTente novamente mais tarde." -> ok)");
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
}

TEST_F(Refused, WritesADeletionOnceAlthoughItsSundayIsConfirmed)
{
    RefuseTheSunday("Excluir", true);
    Answers({Reply::Yes});
    EXPECT_TRUE(Save(operacao::Excluir));
    EXPECT_EQ(Calls(), (Strings{"call " + Agenda + ".Excluir() -> Integer 2"}));
    EXPECT_EQ(Boxes(), (Strings{Sunday + " -> yes"})) << "nor is a package asked for";
    EXPECT_TRUE(ficha->Estado.OperacaoConcluida);
}

} // namespace

} // namespace kova::agenda
