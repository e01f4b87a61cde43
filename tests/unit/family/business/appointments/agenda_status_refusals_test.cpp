#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include <limits>

namespace kova::family::test {

class AgendaStatusRefusals : public DeskTest {
protected:
    /// The change answers that status with that field and that text, and changes nothing.
    void ExpectAnswer(Component& agenda, Integer status, const Text& field, const Text& text)
    {
        const auto before = Everything();
        EXPECT_EQ(agenda.Call("Alterar"), Value(status));
        EXPECT_EQ(agenda.Get("NomeDoCampoValidado"), Value(field));
        EXPECT_EQ(agenda.Get("DescricaoDaFalha"), Value(text));
        EXPECT_EQ(agenda.Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
        EXPECT_EQ(agenda.Get("NumeroDoErro"), Value(Long(0)));
        EXPECT_EQ(Everything(), before);
    }

    /// The change answers 1 with that number and that text, and changes nothing.
    void ExpectFailure(Component& agenda, Long number, const Text& text)
    {
        const auto before = Everything();
        EXPECT_EQ(agenda.Call("Alterar"), Value(Integer(1)));
        EXPECT_EQ(agenda.Get("NumeroDoErro"), Value(number));
        EXPECT_EQ(agenda.Get("DescricaoDoErro"), Value(text));
        EXPECT_EQ(agenda.Get("LocalDoErro"), Value("KOVA_N_Agenda.clsAgenda, Alterar"));
        EXPECT_EQ(agenda.Get("DescricaoDaFalha"), Value(""));
        EXPECT_EQ(agenda.Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
        EXPECT_EQ(Everything(), before);
    }
};

namespace {

class Nobody : public Object { };

} // namespace

TEST_F(AgendaStatusRefusals, NameTheSituationOutsideOneToFour)
{
    for (const int status : {-1, 0, 5})
        ExpectAnswer(*Desk(1, status), 2, "Situacao", "Selecione a situação.");
}

TEST_F(AgendaStatusRefusals, TellThatTheAppointmentIsGone)
{
    for (const Double number : {999.0, 0.0, -1.0, 1.5, 1e300, std::numeric_limits<Double>::quiet_NaN()}) {
        const auto agenda = Desk(1, 2);
        agenda->Set("NumeroDeLancamento", number);
        ExpectAnswer(*agenda, 3, "", "O agendamento não existe mais.");
    }
}

TEST_F(AgendaStatusRefusals, KeepAClinicalServiceFromAPreSale)
{
    ExpectAnswer(*Desk(1, 4), 3, "", "Não é possível gerar pré-venda para serviços tipo clínico.");
}

TEST_F(AgendaStatusRefusals, KeepASimplifiedAppointmentFromAPreSale)
{
    ExpectAnswer(*Desk(4, 4), 3, "", "Não é possível gerar pré-venda para agendamento simplificado.");
    EXPECT_EQ(Change(4, 2), 0);
}

TEST_F(AgendaStatusRefusals, NameTheClinicalTypeFirst)
{
    Run("update agendamento set numero_do_tipo_de_servico = 1 where numero = 4");
    ExpectAnswer(*Desk(4, 4), 3, "", "Não é possível gerar pré-venda para serviços tipo clínico.");
}

TEST_F(AgendaStatusRefusals, KeepABilledPreSale)
{
    ASSERT_EQ(Change(2, 4), 0);
    Run("update pre_venda set situacao = 3");
    for (const int status : {1, 2, 3})
        ExpectAnswer(*Desk(2, status), 3, "",
                     "Não é possível alterar a situação: a pré-venda deste agendamento já foi faturada.");
}

TEST_F(AgendaStatusRefusals, AreForgottenByTheNextWrite)
{
    const auto agenda = Desk(1, 0);
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(2)));
    agenda->Set("SituacaoNova", Integer(2));
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value(""));
    EXPECT_EQ(agenda->Get("DescricaoDaFalha"), Value(""));
}

TEST_F(AgendaStatusRefusals, AskForAUser)
{
    Agenda without(desk_);
    without.Set("AtualizarSomenteOCampoSituacao", true);
    without.Set("SituacaoNova", Integer(2));
    without.Set("NumeroDeLancamento", Double(1));
    ExpectFailure(without, 91, "Usuário não informado.");
    for (const ObjectRef& user :
         {ObjectRef(), ObjectRef(std::make_shared<Nobody>()), ObjectRef(std::make_shared<DeskUser>("  "))}) {
        const auto agenda = Desk(1, 2);
        agenda->Set("DadosDoUsuario", user);
        ExpectFailure(*agenda, 91, "Usuário não informado.");
    }
}

TEST_F(AgendaStatusRefusals, AskForAUserBeforeAPackageIsChanged)
{
    const auto agenda = Desk(21, 1);
    agenda->Set("DadosDoUsuario", ObjectRef());
    EXPECT_EQ(agenda->Call("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa"), Value(Integer(1)));
    EXPECT_EQ(agenda->Get("DescricaoDoErro"), Value("Usuário não informado."));
    EXPECT_EQ(agenda->Get("LocalDoErro"),
              Value("KOVA_N_Agenda.clsAgenda, AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa"));
    EXPECT_EQ(Count("auditoria"), 0);
}

} // namespace kova::family::test
