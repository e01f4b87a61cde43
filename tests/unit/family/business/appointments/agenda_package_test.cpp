#include "tests/unit/family/business/appointments/desk_fixture.hpp"

namespace kova::family::test {

class AgendaPackage : public DeskTest {
protected:
    static Integer ChangePackage(Component& agenda, std::vector<Argument> arguments = {})
    {
        return agenda.Call("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", arguments).ToInteger();
    }

    std::vector<int> Statuses() { return {StatusOf(21), StatusOf(22), StatusOf(23)}; }
};

using Statuses3 = std::vector<int>;

TEST_F(AgendaPackage, IsKnownAfterAChangeOfOneOfItsAppointmentsOnly)
{
    const auto agenda = Desk(21, 3);
    EXPECT_EQ(agenda->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(agenda->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(true));
    agenda->Set("NumeroDeLancamento", Double(1));
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(agenda->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
}

TEST_F(AgendaPackage, IsNotAskedAboutWhereTheAppointmentIsAttended)
{
    for (const int status : {2, 4}) {
        const auto agenda = Desk(21, status);
        ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
        EXPECT_EQ(agenda->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false)) << status;
    }
    for (const int status : {1, 3}) {
        const auto agenda = Desk(21, status);
        ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
        EXPECT_EQ(agenda->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(true)) << status;
    }
}

TEST_F(AgendaPackage, TakesTheStatusByReferenceAsTheListSendsIt)
{
    const auto agenda = Desk(21, 3);
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(Statuses(), (Statuses3{3, 1, 1}));
    Integer status = 3;
    EXPECT_EQ(ChangePackage(*agenda, {ByRef(status)}), 0);
    EXPECT_EQ(status, 3);
    EXPECT_EQ(Statuses(), (Statuses3{3, 3, 3}));
    EXPECT_EQ(ChangePackage(*agenda, {Long(1)}), 0);
    EXPECT_EQ(Statuses(), (Statuses3{1, 1, 1}));
}

TEST_F(AgendaPackage, IsCancelledWithoutAnArgument)
{
    EXPECT_EQ(ChangePackage(*Desk(22, 1)), 0);
    EXPECT_EQ(Statuses(), (Statuses3{3, 3, 3}));
}

TEST_F(AgendaPackage, TouchesNoOtherAppointment)
{
    ASSERT_EQ(ChangePackage(*Desk(22, 1)), 0);
    EXPECT_EQ(Count("agendamento where alterado_por like 'Lia%'"), 3);
    EXPECT_EQ(Count("auditoria where chave in (21, 22, 23)"), 3);
    EXPECT_EQ(Count("auditoria"), 3);
}

TEST_F(AgendaPackage, KeepsWhatIsAttendedOrBilled)
{
    ASSERT_EQ(Change(21, 2), 0);
    ASSERT_EQ(Change(22, 4), 0);
    Run("update pre_venda set situacao = 3");
    EXPECT_EQ(ChangePackage(*Desk(23, 1)), 0);
    EXPECT_EQ(Statuses(), (Statuses3{2, 4, 3}));
}

TEST_F(AgendaPackage, KeepsABilledAppointmentThatIsNotAttended)
{
    Run("insert into pre_venda (numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
        " values (22, 6000, 3, '2026-11-01 09:00:00')");
    EXPECT_EQ(ChangePackage(*Desk(23, 1)), 0);
    EXPECT_EQ(Statuses(), (Statuses3{3, 1, 3}));
}

TEST_F(AgendaPackage, LeavesThoseThatHaveTheStatusAlreadyUntouched)
{
    ASSERT_EQ(Change(21, 3), 0);
    desk_.now.time = {11, 0, 0};
    EXPECT_EQ(ChangePackage(*Desk(21, 3)), 0);
    EXPECT_EQ(Count("agendamento where alterado_em = '2026-11-20 11:00:00'"), 2);
}

TEST_F(AgendaPackage, MakesAPreSaleForEachAppointmentThatGetsOne)
{
    const auto agenda = Desk(21, 4);
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(ChangePackage(*agenda, {Integer(4)}), 0);
    EXPECT_EQ(Statuses(), (Statuses3{4, 4, 4}));
    EXPECT_EQ(PreSales(),
              (std::vector<std::string>{"21 6000 1 2026-11-20 09:04:05", "22 6000 1 2026-11-20 09:04:05",
                                        "23 6000 1 2026-11-20 09:04:05"}));
}

TEST_F(AgendaPackage, ChangesNothingWhereOneOfItsAppointmentsIsRefused)
{
    Run("update agendamento set numero_do_tipo_de_servico = 1 where numero = 23");
    const auto before = Everything();
    const auto agenda = Desk(21, 4);
    EXPECT_EQ(ChangePackage(*agenda, {Integer(4)}), 3);
    EXPECT_EQ(agenda->Get("DescricaoDaFalha"),
              Value("Não é possível gerar pré-venda para serviços tipo clínico."));
    EXPECT_EQ(Everything(), before);
}

TEST_F(AgendaPackage, IsRefusedForAnUnknownStatusAndWhereThereIsNone)
{
    const auto before = Everything();
    const auto agenda = Desk(21, 1);
    EXPECT_EQ(ChangePackage(*agenda, {Long(5)}), 2);
    EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value("Situacao"));
    EXPECT_EQ(agenda->Get("DescricaoDaFalha"), Value("Selecione a situação."));
    const auto alone = Desk(1, 1);
    EXPECT_EQ(ChangePackage(*alone), 3);
    EXPECT_EQ(alone->Get("DescricaoDaFalha"), Value("O agendamento não pertence a um pacote."));
    const auto gone = Desk(999, 1);
    EXPECT_EQ(ChangePackage(*gone), 3);
    EXPECT_EQ(gone->Get("DescricaoDaFalha"), Value("O agendamento não existe mais."));
    EXPECT_EQ(Everything(), before);
}

TEST_F(AgendaPackage, TakesOneArgumentAtMost)
{
    const auto agenda = Desk(21, 1);
    try {
        ChangePackage(*agenda, {Long(1), Long(1)});
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 450);
    }
}

} // namespace kova::family::test
