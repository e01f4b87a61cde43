// Every statement that a desk runs in a day's work finds its rows by an index in each table that grows with
// the years, on both engines.

#include "tests/unit/family/plan_fixture.hpp"

#include "family/business/appointments/appointment_history.hpp"
#include "family/business/appointments/appointment_restoration.hpp"
#include "family/business/registers/animals.hpp"
#include "family/business/registers/breeds.hpp"
#include "family/business/registers/customers.hpp"
#include "family/business/registers/employees.hpp"
#include "family/business/registers/holidays.hpp"
#include "family/business/registers/service_types.hpp"
#include "family/business/registers/services.hpp"
#include "family/business/registers/species.hpp"
#include "family/data/stores/waiting_list.hpp"

#include <algorithm>
#include <set>

namespace kova::family::test {

class StatementPlans : public BigShopTest {
protected:
    StatementPlans()
    {
        AddAppointments(5);
        AddTheRest();
        Analyse();
    }

    void Select(Component&& component, const char* member, std::vector<Argument> arguments)
    {
        EXPECT_EQ(component.Call(member, arguments), Value(Integer(0)))
            << member << " " << component.Get("DescricaoDoErro").ToText();
    }

    void SelectCustomers(const Text& text, const Text& address)
    {
        Select(Customers(desk_), "Selecionar",
               {Long(2), Integer(0), Long(0), text, "", Double(0), address, "", "", Double(0), ""});
    }
    void SelectAnimals(const Value& codeOrText, Double customer)
    {
        Select(Animals(desk_), "Selecionar",
               {Long(2), Integer(0), Long(1), codeOrText, Integer(1), customer});
    }

    void UseTheRegisters()
    {
        SelectCustomers("12345678909", "");
        SelectCustomers("canil", "ipê");
        Select(Customers(desk_), "SelecionarEndereco", {Double(10)});
        SelectAnimals(Long(50), 10);
        SelectAnimals("999000000000001", 0);
        SelectAnimals("pa", 10);
        Select(Animals(desk_), "SelecionarParaComboBoxFiltradoPorCliente", {Double(10), Integer(1)});
        Select(Services(desk_), "Selecionar", {Long(2), Integer(0), Long(0), "ba", Long(4)});
        Select(Employees(desk_), "SelecionarParaComboBox", {Double(0)});
        Select(ServiceTypes(desk_), "SelecionarParaComboBox", {Double(0)});
        Select(Species(desk_), "SelecionarParaComboBox", {Double(0)});
        Select(Breeds(desk_), "SelecionarParaComboBox", {Double(1), Double(0)});
        Select(Holidays(desk_), "Selecionar", {Long(2), Integer(0), Long(0), "20/11"});
        Select(Agenda(desk_), "Selecionar", DayArguments("20/11/2026"));
        Select(Agenda(desk_), "Selecionar", DayArguments("20/11/2026", "paçoca"));
    }

    void WriteAppointments()
    {
        const auto package = Full(On("15/01/2031"));
        package->Set("CodigoDoServico", 3.0);
        package->Set("QuantidadeDeReagendamentos", Long(2));
        package->Set("FrequenciaDeReagendamento", Integer(0));
        package->Set("DadosValidados", true);
        ASSERT_EQ(Write(*package), 0);
        Shows();
        OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Outro"; });
        const Desk form = Form(FullNumber);
        form->Set("TransporteLevar", Long(-1));
        ASSERT_EQ(Write(*form, "Alterar"), 0);
        for (const int status : {4, 1}) {
            Shows();
            ASSERT_EQ(Change(FullNumber, status), 0);
        }
        ASSERT_EQ(Write(*DeskTest::Desk(21, 3), "AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa"), 0);
        ASSERT_EQ(Write(*DeskTest::Desk(SimplifiedNumber, 0), "Excluir"), 0);
        ASSERT_FALSE(HistoryOf(Data(), FullNumber).empty());
        ASSERT_FALSE(FindOpenWaiting(Data(), "2026-11-20").empty());
        ASSERT_TRUE(FindWaitingOf(Data(), 10).empty());
        ASSERT_TRUE(FindWaitingFor(Data(), {50}).empty());
        ASSERT_TRUE(RestoreAppointment(Data(), SimplifiedNumber, marcos_).IsDone());
    }

    /// Those whose texts are looked at in memory are read whole, once after each change.
    static bool ReadsIntoMemory(const std::string& statement)
    {
        static const std::set<std::string> reading = {
            "select codigo, nomes_de_busca from cliente order by nome_de_busca, codigo",
            "select codigo, endereco_de_busca from cliente order by codigo",
            "select codigo, nome_de_busca from animal where situacao = 1 order by nome_de_busca, codigo"};
        return reading.contains(statement);
    }

    void ExpectNoneReadsAWholeTable(const std::vector<StatementPlan>& plans)
    {
        constexpr std::size_t Fewest = 30;
        EXPECT_GT(plans.size(), Fewest);
        for (const StatementPlan& plan : plans) {
            EXPECT_TRUE(ReadsIntoMemory(plan.statement) || !ReadsWholeTable(plan.plan))
                << plan.statement << "\n"
                << plan.plan;
        }
    }
};

TEST_F(StatementPlans, OfADaysWorkReadNoTableThatGrows)
{
    UseTheRegisters();
    WriteAppointments();
    ExpectNoneReadsAWholeTable(PlansOf(Data()));
    ExpectNoneReadsAWholeTable(PlansForValues(Data()));
    AnalyseALittle();
    ExpectNoneReadsAWholeTable(PlansOf(Data()));
}

TEST_F(StatementPlans, OfADaysWorkReadNoTableThatGrowsEvenIfNothingWasCounted)
{
    ForgetWhatWasCounted();
    UseTheRegisters();
    WriteAppointments();
    ExpectNoneReadsAWholeTable(PlansOf(Data()));
}

TEST_F(StatementPlans, FindEverythingOfACustomerAnAnimalOrAService)
{
    for (const std::string column : {"codigo_do_cliente", "codigo_do_animal", "codigo_do_servico"}) {
        Key found = 0;
        const Key sought = 3;
        soci::statement statement =
            (Session().prepare << "select numero from agendamento where " + column + " = :chave",
             soci::into(found), soci::use(sought, "chave"));
        statement.execute();
        const auto plans = PlansOf(Data());
        const auto plan = std::ranges::find_if(plans, [&](const StatementPlan& one) {
            return one.statement.find("where " + column + " = ") != std::string::npos;
        });
        ASSERT_NE(plan, plans.end());
        const std::string index = "agendamento_por_" + column.substr(std::string("codigo_do_").size());
        EXPECT_NE(plan->plan.find(index), std::string::npos) << plan->plan;
    }
}

TEST_F(StatementPlans, ThatReadAWholeTableAreSeen)
{
    for (const char* statement :
         {"select numero from agendamento a where observacao = 'x'",
          "select codigo from cliente where cep like '%1'", "select codigo from animal n where cor like 'p%'",
          "update pre_venda set situacao = 3 where valor_em_centavos = 7"}) {
        soci::statement kept = (Session().prepare << statement);
        const auto plans = PlansOf(Data());
        const auto plan = std::ranges::find(plans, statement, &StatementPlan::statement);
        ASSERT_NE(plan, plans.end());
        EXPECT_TRUE(ReadsWholeTable(plan->plan)) << plan->plan;
    }
}

} // namespace kova::family::test
