#include "tests/unit/family/business/appointments/desk_fixture.hpp"

namespace kova::family::test {

class AgendaStatus : public DeskTest { };

using Lines = std::vector<std::string>;

TEST_F(AgendaStatus, ChangesAndShowsInTheNextSelection)
{
    // The shop's own appointments overlap.
    Run("update funcionario set agendamentos_simultaneos = 0");
    for (const int status : {2, 3, 1}) {
        const auto agenda = Desk(1, status);
        EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
        EXPECT_EQ(agenda->Get("DescricaoDaFalha"), Value(""));
        EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value(""));
        EXPECT_EQ(agenda->Get("NumeroDoErro"), Value(Long(0)));
        EXPECT_EQ(Appointment(1)->Field("Situacao").ToLong(), status);
    }
}

TEST_F(AgendaStatus, StampsWhoAndWhenOnTheRowAndOnNoOther)
{
    ASSERT_EQ(Change(1, 2), 0);
    EXPECT_EQ(Texts("select alterado_em || ' ' || alterado_por from agendamento where numero = 1"),
              Lines{"2026-11-20 09:04:05 Lia \"Lili\""});
    const RecordSetRef shown = Appointment(1);
    EXPECT_EQ(shown->Field("UsuarioDaAlteracao"), Value("Lia \"Lili\""));
    EXPECT_EQ(shown->Field("DataEHoraDaAlteracao"), Value("20/11/2026 09:04:05"));
    EXPECT_EQ(Count("agendamento where alterado_em = '2026-11-20 09:04:05'"), 1);
}

TEST_F(AgendaStatus, LeavesALineWithTheValuesBeforeAndAfter)
{
    ASSERT_EQ(Change(1, 2), 0);
    desk_.now.time = {10, 0, 0};
    ASSERT_EQ(Change(1, 3), 0);
    EXPECT_EQ(Audit(),
              (Lines{R"(agendamento 1 alteracao {"si":1,"ve":1} {"si":2,"ve":2})",
                     R"(agendamento 1 alteracao {"si":2,"ve":2} {"si":3,"ve":3})"}));
    EXPECT_EQ(Texts("select momento || ' ' || usuario from auditoria order by codigo"),
              (Lines{"2026-11-20 09:04:05 7 - Lia \"Lili\"", "2026-11-20 10:00:00 7 - Lia \"Lili\""}));
}

TEST_F(AgendaStatus, WithAPreSaleMakesItWithThePriceOfTheService)
{
    ASSERT_EQ(Change(2, 4), 0);
    EXPECT_EQ(StatusOf(2), 4);
    EXPECT_EQ(PreSales(), Lines{"2 6000 1 2026-11-20 09:04:05"});
    EXPECT_EQ(Audit().front(),
              R"(pre_venda 1 inclusao - {"numero_do_agendamento":2,"valor_em_centavos":6000,"situacao":1,)"
              R"("criada_em":"2026-11-20 09:04:05"})");
    EXPECT_EQ(Audit().size(), 2U);
}

TEST_F(AgendaStatus, WithAPreSaleTwiceMakesOnlyOne)
{
    ASSERT_EQ(Change(2, 4), 0);
    ASSERT_EQ(Change(2, 4), 0);
    EXPECT_EQ(PreSales().size(), 1U);
}

TEST_F(AgendaStatus, BackFromAPreSaleCancelsItAndASecondOneIsNew)
{
    ASSERT_EQ(Change(2, 4), 0);
    ASSERT_EQ(Change(2, 2), 0);
    EXPECT_EQ(StatusOf(2), 2);
    EXPECT_EQ(PreSales(), Lines{"2 6000 2 2026-11-20 09:04:05"});
    EXPECT_EQ(Audit()[2], R"(pre_venda 1 alteracao {"situacao":1} {"situacao":2})");
    Run("update servico set preco_em_centavos = 7000 where codigo = 2");
    ASSERT_EQ(Change(2, 4), 0);
    EXPECT_EQ(PreSales(), (Lines{"2 6000 2 2026-11-20 09:04:05", "2 7000 1 2026-11-20 09:04:05"}));
}

TEST_F(AgendaStatus, GoesByTheStoredRecordWhateverTheScreenShowed)
{
    ASSERT_EQ(Change(2, 4), 0);
    const auto agenda = Desk(2, 3);
    agenda->Set("SituacaoAtual", Integer(1));
    agenda->Set("CodigoDoCliente", 999.0);
    agenda->Set("CodigoDoServico", 1.0);
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(PreSales(), Lines{"2 6000 2 2026-11-20 09:04:05"});
}

TEST_F(AgendaStatus, TakesWholeNumbersOfEveryTypeAndAllThatTheListSets)
{
    const auto agenda = Desk(2, 1);
    agenda->Set("SituacaoAtual", Long(1));
    agenda->Set("SituacaoNova", Double(4));
    agenda->Set("NumeroDeLancamento", Long(2));
    agenda->Set("CodigoDoCliente", Double(10));
    agenda->Set("CodigoDoAnimal", Integer(50));
    agenda->Set("NumeroDoTipoDeServico", Integer(4));
    agenda->Set("CodigoDoServico", Long(2));
    agenda->Set("CodigoDoFuncionario", Double(2));
    agenda->Set("DataInicial", "20/11/2026");
    EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(StatusOf(2), 4);
}

TEST_F(AgendaStatus, PropertiesCannotBeReadAndRefuseWhatTheyCannotTake)
{
    const auto agenda = Desk(2, 1);
    const auto number = [](auto action) {
        try {
            action();
        } catch (const Failure& failure) {
            return failure.Number();
        }
        return 0;
    };
    for (const char* name : {"AtualizarSomenteOCampoSituacao", "NumeroDeLancamento", "SituacaoAtual",
                             "SituacaoNova", "CodigoDoCliente", "CodigoDoAnimal", "NumeroDoTipoDeServico",
                             "CodigoDoServico", "CodigoDoFuncionario", "DataInicial"}) {
        EXPECT_EQ(number([&] { agenda->Get(name); }), 438) << name;
        EXPECT_EQ(number([&] { agenda->Set(name, std::make_shared<DeskUser>("x")); }), 13) << name;
    }
    EXPECT_EQ(number([&] { agenda->Set("SituacaoNova", Long(70000)); }), 6);
    for (const char* name :
         {"DescricaoDaFalha", "NomeDoCampoValidado", "RegistroPercenteAUmPacoteDeBanhoETosa"})
        EXPECT_EQ(number([&] { agenda->Set(name, ""); }), 450) << name;
    EXPECT_EQ(number([&] { agenda->Call("Alterar", {Long(1)}); }), 450);
}

} // namespace kova::family::test
