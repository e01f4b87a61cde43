// What a record form is told about a field that cannot stay as it is.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include <limits>

namespace kova::family::test {

class FieldChecks : public BookingTest {
protected:
    /// Writes that set up what a case needs.
    FieldChecks()
    {
        for (const char* change : {
                 "insert into servico (codigo, nome, nome_de_busca, descricao, numero_do_tipo_de_servico,"
                 " duracao_em_minutos, preco_em_centavos, custo_em_centavos, situacao)"
                 " values (4, 'Tosa', 'tosa', '', 4, 60, 5000, 0, 2)",
                 "update cliente set situacao = 2 where codigo = 11",
             })
            Run(change);
    }

    struct Step {
        const char* property;
        /// Refused each.
        std::vector<Value> wrong;
        const char* field;
        const char* text;
    };

    /// Begins with every property wrong and mends one after the other: each time the next field is named.
    void ExpectInOrder(Component& agenda, const std::vector<Step>& steps, const std::vector<Value>& right)
    {
        for (const Step& step : steps)
            agenda.Set(step.property, step.wrong.front());
        for (std::size_t at = 0; at < steps.size(); ++at) {
            for (const Value& wrong : steps[at].wrong) {
                SCOPED_TRACE(std::string(steps[at].property) + " " + wrong.ToText());
                agenda.Set(steps[at].property, wrong);
                ExpectRefused(agenda, steps[at].field, steps[at].text);
            }
            agenda.Set(steps[at].property, right[at]);
        }
        EXPECT_EQ(Write(agenda), 0);
        EXPECT_EQ(agenda.Get("NomeDoCampoValidado"), Value(""));
        EXPECT_EQ(agenda.Get("DescricaoDaFalha"), Value(""));
    }

    const std::vector<Step> commonSteps = {
        {"NumeroDoTipoDeServico",
         {Integer(0), Long(99), Long(-4)},
         "NumeroDoTipoDeServico",
         "Selecione o tipo de serviço."},
        {"CodigoDoServico",
         {0.0, 999.0, 2.5, 9223372036854775808.0, 1e300, 4.0},
         "CodigoDoServico",
         "Informe o serviço."},
        {"CodigoDoServico", {1.0}, "CodigoDoServico", "O serviço informado não é do tipo selecionado."},
        {"DataInicial", {"__/__/____", "", "30/02/2026"}, "DataInicial", "Informe uma data inicial válida."},
        {"HoraInicial", {"24:00", "__:__", "9:7"}, "HoraInicial", "Informe uma hora inicial válida."},
        {"DataFinal", {"", "01/13/2026", "01/01/3000"}, "DataFinal", "Informe uma data final válida."},
        {"HoraFinal", {"", "12:60"}, "HoraFinal", "Informe uma hora final válida."},
        {"HoraFinal", {"09:00", "08:00"}, "HoraFinal", "O término deve ser posterior ao início."},
        {"CodigoDoFuncionario",
         {Integer(0), Long(99), Long(3)},
         "CodigoDoFuncionario",
         "Selecione o(a) funcionário(a)."},
        {"Situacao", {Long(0), Long(5), Long(-1)}, "Situacao", "Selecione a situação."},
    };
    const std::vector<Value> commonRight = {Long(4),      1.0,     2.0,     "01/12/2026", "09:00",
                                            "01/12/2026", "09:00", "10:00", Long(2),      Long(1)};

    static std::vector<Step> Joined(std::vector<Step> steps, const std::vector<Step>& more)
    {
        steps.insert(steps.end(), more.begin(), more.end());
        return steps;
    }
    static std::vector<Value> Joined(std::vector<Value> values, const std::vector<Value>& more)
    {
        values.insert(values.end(), more.begin(), more.end());
        return values;
    }
};

TEST_F(FieldChecks, OfAFullRecordNameTheFieldsInTheirOrder)
{
    const std::vector<Step> first = {
        {"CodigoDoCliente",
         {0.0, 999.0, 9223372036854775808.0, -1e300, std::numeric_limits<Double>::infinity()},
         "CodigoDoCliente",
         "Informe o cliente."},
        {"CodigoDoCliente", {11.0}, "CodigoDoCliente", "O cliente informado não está ativo."},
        {"CodigoDoAnimal", {Integer(0), Long(999), Long(51)}, "CodigoDoAnimal", "Selecione o animal."},
    };
    ExpectInOrder(*Full(On("01/12/2026")), Joined(first, commonSteps),
                  Joined({11.0, 10.0, Long(50)}, commonRight));
    EXPECT_EQ(AddedDays(), std::vector<std::string>{"2026-12-01"});
}

TEST_F(FieldChecks, OfASimplifiedRecordNameTheFieldsInTheirOrder)
{
    const std::vector<Step> first = {
        {"NomeOuRazaoSocialDoCliente",
         {"", "   ", "\r\n"},
         "NomeOuRazaoSocialDoCliente",
         "Informe o nome ou a razão social do cliente."},
        {"NomeDoAnimal", {"", "\t", "\u00A0"}, "NomeDoAnimal", "Informe o nome do animal."},
    };
    ExpectInOrder(*Simplified(On("01/12/2026")), Joined(first, commonSteps),
                  Joined({"Íris", "Bidu"}, commonRight));
    EXPECT_EQ(AddedDays(), std::vector<std::string>{"2026-12-01"});
}

TEST_F(FieldChecks, OfACustomerGoByItsSituation)
{
    for (const int situation : {2, 3, 4}) {
        Run("update cliente set situacao = " + std::to_string(situation) + " where codigo = 10");
        ExpectRefused(*Full(On("01/12/2026")), "CodigoDoCliente", "O cliente informado não está ativo.");
    }
    LiftRulesOf(host_.DataSource());
    Run("update cliente set situacao = 5 where codigo = 10");
    EXPECT_EQ(Write(*Full(On("01/12/2026"))), 0);
}

TEST_F(FieldChecks, AreTheSameWhereARecordIsAltered)
{
    for (const auto& [field, text] : {std::pair("DataFinal", "Informe uma data final válida."),
                                      std::pair("HoraInicial", "Informe uma hora inicial válida."),
                                      std::pair("DataInicial", "Informe uma data inicial válida.")}) {
        const auto desk = Over(1, Full(On("01/12/2026")));
        desk->Set(field, "x");
        ExpectAnswer(*desk, "Alterar", 2, field, text);
    }
    const auto desk = Over(4, Simplified(On("01/12/2026")));
    desk->Set("NomeDoAnimal", " ");
    ExpectAnswer(*desk, "Alterar", 2, "NomeDoAnimal", "Informe o nome do animal.");
}

TEST_F(FieldChecks, ComeAfterTheQuestionWhetherTheRecordIsStillThere)
{
    ExpectAnswer(*Over(999, Full(On("", "", ""))), "Alterar", 3, "", "O agendamento não existe mais.");
}

TEST_F(FieldChecks, TakeWholeNumbersOfEveryType)
{
    const auto desk = Full(On("01/12/2026"));
    desk->Set("Situacao", Double(1));
    desk->Set("CodigoDoCliente", Integer(10));
    desk->Set("CodigoDoAnimal", "50");
    desk->Set("CodigoDoServico", Long(2));
    desk->Set("TipoDoAgendamento", Integer(0));
    EXPECT_EQ(Write(*desk), 0);
}

} // namespace kova::family::test
