// Full records: what they store, what their status does to the pre-sale, their package.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

class RecordWrites : public BookingTest {
protected:
    using Lines = std::vector<std::string>;

    /// A full record over a stored appointment, in the package's hours of 27/11/2026 or another day's.
    Desk Record(int number, Long status, const Hours& hours = On("01/12/2026"))
    {
        Desk desk = Over(number, Full(hours));
        desk->Set("Situacao", status);
        return desk;
    }

    using Properties = std::vector<std::pair<const char*, Value>>;

    /// Of customer 10.
    void AddSecondAnimal()
    {
        Insert(*SharedDatabase(host_.DataSource()),
               AnimalRow{52, 10, "Bidu", "M", 1, 2, "Preto", {}, {}, 1, "bidu"});
    }
    /// Each changes something for which a pre-sale is made.
    static std::vector<Properties> ChangesOfWhatIsSold()
    {
        return {{{"CodigoDoServico", 3.0}},
                {{"NumeroDoTipoDeServico", Long(1)}, {"CodigoDoServico", 1.0}},
                {{"CodigoDoCliente", 11.0}, {"CodigoDoAnimal", Long(51)}},
                {{"CodigoDoAnimal", Long(52)}}};
    }
    static bool IsClinical(const Properties& change) { return change[0].second == Value(Long(1)); }
    static bool SellsThePackage(const Properties& change) { return change[0].second == Value(3.0); }

    static Integer ChangePackage(Component& agenda, std::vector<Argument> arguments = {})
    {
        return agenda.Call("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", arguments).ToInteger();
    }
    std::vector<int> PackageStatuses() { return {StatusOf(21), StatusOf(22), StatusOf(23)}; }
};

TEST_F(RecordWrites, ShowInTheSelectionOfTheirDay)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    Agenda agenda(host_);
    ASSERT_EQ(agenda.Call("Selecionar", DayArguments("01/12/2026")), Value(Integer(0)));
    const RecordSetRef shown = ResultOf(agenda);
    ASSERT_EQ(shown->RecordCount(), 1);
    EXPECT_EQ(shown->Field("CodigoDoCliente"), Value(10.0));
    EXPECT_EQ(shown->Field("NomeOuRazaoSocialDoCliente"), Value("José Antônio Peçanha"));
    EXPECT_EQ(shown->Field("CodigoDoAnimal"), Value(Long(50)));
    EXPECT_EQ(shown->Field("NomeDaRaca"), Value("Poodle"));
    EXPECT_EQ(shown->Field("TransporteBuscar"), Value("Sim"));
    EXPECT_EQ(shown->Field("TransporteLevar"), Value("Não"));
    EXPECT_EQ(shown->Field("Observacao"), Value("Laço azul."));
}

TEST_F(RecordWrites, CarryNoTypedTexts)
{
    const auto desk = Full(On("01/12/2026"));
    desk->Set("NomeDoAnimal", "Outro");
    desk->Set("NomeOuRazaoSocialDoCliente", "Outra");
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(Count("agendamento where numero = 24 and nome_do_animal = '' and nome_do_cliente = ''"
                    " and texto_de_busca = ''"),
              1);
}

TEST_F(RecordWrites, AlterEverythingAndKeepWhoAddedIt)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    desk_.now.time = {12, 0, 0};
    const auto desk = Record(24, 2, On("03/12/2026", "10:00", "11:00"));
    desk->Set("CodigoDoCliente", 11.0);
    desk->Set("CodigoDoAnimal", Long(51));
    desk->Set("NumeroDoTipoDeServico", Long(1));
    desk->Set("CodigoDoServico", 1.0);
    desk->Set("CodigoDoFuncionario", Long(1));
    desk->Set("TransporteBuscar", Long(0));
    desk->Set("TransporteLevar", Long(-1));
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(Count("agendamento where numero = 24 and codigo_do_cliente = 11 and codigo_do_animal = 51"
                    " and numero_do_tipo_de_servico = 1 and codigo_do_servico = 1"
                    " and codigo_do_funcionario = 1 and transporte_buscar = 0 and transporte_levar = 1"
                    " and situacao = 2 and data_inicial = '2026-12-03'"
                    " and incluido_em = '2026-11-20 09:04:05' and incluido_por = 'Lia'"
                    " and alterado_em = '2026-11-20 12:00:00' and alterado_por = 'Lia'"),
              1);
}

TEST_F(RecordWrites, ToFourMakeThePreSaleWithThePriceOfTheServiceThatTheyName)
{
    ASSERT_EQ(Write(*Record(1, 4), "Alterar"), 0);
    EXPECT_EQ(StatusOf(1), 4);
    EXPECT_EQ(PreSales(), Lines{"1 6000 1 2026-11-20 09:04:05"});
    ASSERT_EQ(Write(*Record(1, 4), "Alterar"), 0);
    EXPECT_EQ(PreSales().size(), 1U);
}

TEST_F(RecordWrites, ThatAreAddedWithFourMakeOneForEach)
{
    const auto desk = Record(0, 4);
    desk->Set("QuantidadeDeReagendamentos", Long(1));
    desk->Set("FrequenciaDeReagendamento", Integer(0));
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(PreSales(), (Lines{"24 6000 1 2026-11-20 09:04:05", "25 6000 1 2026-11-20 09:04:05"}));
}

TEST_F(RecordWrites, FromFourCancelThePreSale)
{
    ASSERT_EQ(Change(2, 4), 0);
    ASSERT_EQ(Write(*Record(2, 1), "Alterar"), 0);
    EXPECT_EQ(PreSales(), Lines{"2 6000 2 2026-11-20 09:04:05"});
}

TEST_F(RecordWrites, AreRefusedWhereThePreSaleWasBilled)
{
    ASSERT_EQ(Change(2, 4), 0);
    Run("update pre_venda set situacao = 3");
    ExpectAnswer(*Record(2, 1), "Alterar", 3, "",
                 "Não é possível alterar a situação: a pré-venda deste agendamento já foi faturada.");
    EXPECT_EQ(Write(*Record(2, 4), "Alterar"), 0);
}

TEST_F(RecordWrites, ThatChangeWhatWasBilledAreRefused)
{
    ASSERT_EQ(Change(2, 4), 0);
    Run("update pre_venda set situacao = 3");
    AddSecondAnimal();
    for (const Long status : {4, 2}) {
        SCOPED_TRACE(status);
        for (const Properties& change : ChangesOfWhatIsSold()) {
            const auto desk = Record(2, status);
            for (const auto& [name, value] : change)
                desk->Set(name, value);
            ExpectAnswer(*desk, "Alterar", 3, "",
                         "Não é possível alterar um agendamento com pré-venda faturada.");
        }
    }
    const auto simplified = Over(2, Simplified(On("01/12/2026")));
    ExpectAnswer(*simplified, "Alterar", 3, "",
                 "Não é possível alterar um agendamento com pré-venda faturada.");
    Run("update agendamento set situacao = 1 where numero = 2");
    const auto notAttended = Record(2, 1);
    notAttended->Set("CodigoDoServico", 3.0);
    ExpectAnswer(*notAttended, "Alterar", 3, "",
                 "Não é possível alterar um agendamento com pré-venda faturada.");
}

TEST_F(RecordWrites, ThatLeaveWhatWasBilledChangeEverythingElse)
{
    ASSERT_EQ(Change(2, 4), 0);
    Run("update pre_venda set situacao = 3");
    const auto desk = Record(2, 4, On("03/12/2026", "14:00", "15:00"));
    desk->Set("CodigoDoFuncionario", Long(1));
    desk->Set("Observacao", "Perfume.");
    desk->Set("TransporteLevar", Long(-1));
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(PreSales(), Lines{"2 6000 3 2026-11-20 09:04:05"});
}

TEST_F(RecordWrites, ThatChangeWhatIsSoldCancelThePreSaleAndMakeItAnewWithThePriceOfToday)
{
    AddSecondAnimal();
    for (const Properties& change : ChangesOfWhatIsSold()) {
        Run("delete from pre_venda");
        Run("update servico set preco_em_centavos = 6000 where codigo = 2");
        const auto before = Record(2, 4);
        ASSERT_EQ(Write(*before, "Alterar"), 0);
        Run("delete from pre_venda");
        Run("insert into pre_venda (numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
            " values (2, 6000, 1, '2026-11-01 09:00:00')");
        Run("update servico set preco_em_centavos = 7000 where codigo = 2");
        const auto desk = Record(2, 4);
        for (const auto& [name, value] : change)
            desk->Set(name, value);
        if (IsClinical(change)) {
            ExpectAnswer(*desk, "Alterar", 3, "",
                         "Não é possível gerar pré-venda para serviços tipo clínico.");
            continue;
        }
        ASSERT_EQ(Write(*desk, "Alterar"), 0);
        const std::string price = SellsThePackage(change) ? "20000" : "7000";
        EXPECT_EQ(PreSales(),
                  (Lines{"2 6000 2 2026-11-01 09:00:00", "2 " + price + " 1 2026-11-20 09:04:05"}));
        EXPECT_EQ(StatusOf(2), 4);
    }
}

TEST_F(RecordWrites, ThatChangeWhatIsSoldLeaveTheirLinesInTheAudit)
{
    ASSERT_EQ(Change(2, 4), 0);
    Run("delete from auditoria");
    const auto desk = Record(2, 4);
    desk->Set("CodigoDoServico", 3.0);
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    const Lines audit = Audit();
    ASSERT_EQ(audit.size(), 3U);
    EXPECT_EQ(audit[0], R"(pre_venda 1 alteracao {"situacao":1} {"situacao":2})");
    EXPECT_EQ(audit[1],
              R"(pre_venda 2 inclusao - {"numero_do_agendamento":2,"valor_em_centavos":20000,"situacao":1,)"
              R"("criada_em":"2026-11-20 09:04:05"})");
    EXPECT_TRUE(audit[2].starts_with("agendamento 2 alteracao ")) << audit[2];
}

TEST_F(RecordWrites, ThatChangeWhatIsSoldAndLeaveFourOnlyCancelThePreSale)
{
    ASSERT_EQ(Change(2, 4), 0);
    const auto desk = Record(2, 2);
    desk->Set("CodigoDoServico", 3.0);
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(PreSales(), Lines{"2 6000 2 2026-11-20 09:04:05"});
}

TEST_F(RecordWrites, ThatMakeASimplifiedAppointmentOfOneWithAPreSaleAreRefused)
{
    ASSERT_EQ(Change(2, 4), 0);
    const auto simplified = Over(2, Simplified(On("01/12/2026")));
    simplified->Set("Situacao", Long(4));
    ExpectAnswer(*simplified, "Alterar", 3, "",
                 "Não é possível gerar pré-venda para agendamento simplificado.");
}

TEST_F(RecordWrites, AreRefusedAPreSaleOfAClinicalTypeOrWithoutACustomer)
{
    const auto clinical = Record(2, 4);
    clinical->Set("NumeroDoTipoDeServico", Long(1));
    clinical->Set("CodigoDoServico", 1.0);
    ExpectAnswer(*clinical, "Alterar", 3, "", "Não é possível gerar pré-venda para serviços tipo clínico.");
    ExpectAnswer(*clinical, "Adicionar", 3, "", "Não é possível gerar pré-venda para serviços tipo clínico.");
    const auto simplified = Over(4, Simplified(On("01/12/2026")));
    simplified->Set("Situacao", Long(4));
    ExpectAnswer(*simplified, "Alterar", 3, "",
                 "Não é possível gerar pré-venda para agendamento simplificado.");
}

TEST_F(RecordWrites, DeleteUnlessAPreSaleWasMade)
{
    ASSERT_EQ(Change(2, 4), 0);
    const Text text = "Não é possível excluir um agendamento com pré-venda gerada.";
    ExpectAnswer(*Record(2, 1), "Excluir", 3, "", text);
    Run("update pre_venda set situacao = 3");
    ExpectAnswer(*Record(2, 1), "Excluir", 3, "", text);
    Run("update agendamento set situacao = 1 where numero = 2");
    ExpectAnswer(*Record(2, 1), "Excluir", 3, "", text);
    // One whose status alone tells of a pre-sale.
    ExpectAnswer(*Record(7, 1), "Excluir", 3, "", text);
}

TEST_F(RecordWrites, DeleteAndKeepThePreSaleThatWasCancelled)
{
    ASSERT_EQ(Change(2, 4), 0);
    ASSERT_EQ(Change(2, 3), 0);
    ASSERT_EQ(Write(*Record(2, 3), "Excluir"), 0);
    EXPECT_EQ(Count("agendamento where numero = 2"), 0);
    EXPECT_EQ(PreSales(), Lines{"2 6000 2 2026-11-20 09:04:05"});
}

TEST_F(RecordWrites, TellWhetherTheAppointmentBelongsToAPackage)
{
    const auto desk = Record(21, 1);
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(desk->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(true));
    EXPECT_EQ(Count("agendamento where numero = 21 and codigo_do_pacote = 1"), 1);
    ASSERT_EQ(Write(*desk, "Excluir"), 0);
    EXPECT_EQ(desk->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(true));
    const auto alone = Record(1, 1);
    ASSERT_EQ(Write(*alone, "Alterar"), 0);
    EXPECT_EQ(alone->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    ASSERT_EQ(Write(*alone, "Excluir"), 0);
    EXPECT_EQ(alone->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
}

TEST_F(RecordWrites, AskNothingAboutThePackageOfAnAppointmentThatIsAttended)
{
    for (const auto& [status, asks] : {std::pair(2, false), std::pair(4, false), std::pair(3, true)}) {
        const auto desk = Record(21, status);
        ASSERT_EQ(Write(*desk, "Alterar"), 0);
        EXPECT_EQ(desk->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(asks)) << status;
    }
    ASSERT_EQ(Change(22, 2), 0);
    const auto desk = Record(22, 1);
    ASSERT_EQ(Write(*desk, "Excluir"), 0);
    EXPECT_EQ(desk->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
}

TEST_F(RecordWrites, LetThePackageBeChangedAfterAnAlteration)
{
    const auto desk = Record(21, 3);
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(PackageStatuses(), (std::vector<int>{3, 1, 1}));
    EXPECT_EQ(ChangePackage(*desk), 0);
    EXPECT_EQ(PackageStatuses(), (std::vector<int>{3, 3, 3}));
    EXPECT_EQ(ChangePackage(*desk, {Long(1)}), 0);
    EXPECT_EQ(PackageStatuses(), (std::vector<int>{1, 1, 1}));
}

TEST_F(RecordWrites, LetTheRestOfThePackageBeChangedAfterADeletion)
{
    for (const auto& [number, arguments] :
         {std::pair(21, std::vector<Argument>{Long(3)}), std::pair(22, std::vector<Argument>())}) {
        Run("update agendamento set situacao = 1");
        const auto desk = Record(number, 1);
        ASSERT_EQ(Write(*desk, "Excluir"), 0);
        EXPECT_EQ(ChangePackage(*desk, arguments), 0) << desk->Get("DescricaoDaFalha").ToText();
        EXPECT_EQ(StatusOf(23), 3);
        EXPECT_EQ(Count("agendamento where situacao = 3 and codigo_do_pacote is null"), 0);
    }
}

TEST_F(RecordWrites, ThatDeletedOneKnowNoOtherPackage)
{
    const auto desk = Record(1, 1);
    ASSERT_EQ(Write(*desk, "Excluir"), 0);
    EXPECT_EQ(ChangePackage(*desk), 3);
    EXPECT_EQ(desk->Get("DescricaoDaFalha"), Value("O agendamento não pertence a um pacote."));
    desk->Set("NumeroDeLancamento", 2.0);
    EXPECT_EQ(ChangePackage(*desk), 3);
    desk->Set("NumeroDeLancamento", 21.0);
    EXPECT_EQ(ChangePackage(*desk), 0);
    EXPECT_EQ(PackageStatuses(), (std::vector<int>{3, 3, 3}));
}

TEST_F(RecordWrites, MakeARegisteredCustomerOfASimplifiedAppointment)
{
    ASSERT_EQ(Write(*Record(4, 1), "Alterar"), 0);
    EXPECT_EQ(Count("agendamento where numero = 4 and tipo_do_agendamento = 0 and codigo_do_cliente = 10"
                    " and nome_do_cliente = '' and texto_de_busca = ''"),
              1);
}

} // namespace kova::family::test
