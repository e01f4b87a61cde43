#include "tests/unit/family/two_desk_fixture.hpp"

#include "family/business/appointment_fields.hpp"
#include "family/business/status_change.hpp"
#include "family/data/data_source.hpp"
#include "family/data/find_by_key.hpp"
#include "family/data/shared_database.hpp"

namespace kova::family::test {

TwoDesksTest::TwoDesksTest() : otherDesk_(OpenDatabase(host_.DataSource()))
{
    EXPECT_EQ(Write(*Full(On(Day))), 0);
    const auto simplified = Simplified(On(Day));
    simplified->Set("CodigoDoFuncionario", Long(1));
    EXPECT_EQ(Write(*simplified), 0);
}

void TwoDesksTest::Shows(const std::string& day)
{
    EXPECT_EQ(list_.Call("Selecionar", DayArguments(day)), Value(Integer(0)));
}

TwoDesksTest::Desk TwoDesksTest::Form(Key number)
{
    const RecordSetRef records = ResultOf(list_);
    for (records->MoveFirst(); records->Field("NumeroDeLancamento").ToLong() != number;)
        records->MoveNext();
    const auto field = [&](const char* name) { return records->Field(name); };
    const bool simplified = field("CodigoDoCliente") == Value("");
    const Hours hours{field("DataInicial").ToText(), field("HoraInicial").ToText(),
                      field("DataFinal").ToText(), field("HoraFinal").ToText()};
    Desk form = Over(static_cast<int>(number), simplified ? Simplified(hours) : Full(hours));
    for (const char* same : {"Situacao", "CodigoDoFuncionario", "CodigoDoServico", "NumeroDoTipoDeServico"})
        form->Set(same, field(same));
    form->Set("Observacao", field("Observacao").IsNull() ? Value("") : field("Observacao"));
    if (!simplified) {
        form->Set("CodigoDoCliente", field("CodigoDoCliente"));
        form->Set("CodigoDoAnimal", field("CodigoDoAnimal"));
        for (const char* transport : {"TransporteBuscar", "TransporteLevar"})
            form->Set(transport, Long(field(transport) == Value("Sim") ? -1 : 0));
        return form;
    }
    form->Set("NomeOuRazaoSocialDoCliente", field("NomeOuRazaoSocialDoCliente"));
    form->Set("CanaisdeComunicacaoDoCliente", field("TiposECanaisDeComunicacao"));
    form->Set("NomeDoAnimal", field("NomeDoAnimal"));
    form->Set("SexoDoAnimal", field("SexoDoAnimal"));
    form->Set("EspecieDoAnimal", field("NomeDaEspecie"));
    form->Set("RacaDoAnimal", field("NomeDaRaca"));
    form->Set("CorDoAnimal", field("CorDoAnimal"));
    return form;
}

void TwoDesksTest::OtherChanges(Key number, const std::function<void(AppointmentInput&)>& change)
{
    AppointmentInput input = InputOf(*FindByKey<AppointmentRow>(*otherDesk_, number));
    change(input);
    const WriteAnswer answer = AlterAppointment(*otherDesk_, input, marcos_);
    ASSERT_TRUE(answer.IsDone()) << answer.field << " " << answer.text;
}

void TwoDesksTest::OtherSetsStatus(Key number, int status)
{
    ASSERT_TRUE(ChangeStatus(*otherDesk_, number, status, marcos_).IsDone());
}

void TwoDesksTest::OtherDeletes(Key number)
{
    AppointmentInput input;
    input.number = static_cast<Double>(number);
    ASSERT_TRUE(DeleteAppointment(*otherDesk_, input, marcos_).IsDone());
}

AppointmentRow TwoDesksTest::Stored(Key number)
{
    return *FindByKey<AppointmentRow>(*SharedDatabase(host_.DataSource()), number);
}

Text TwoDesksTest::Refused(Component& form, const char* member)
{
    const auto before = Contents();
    EXPECT_EQ(form.Call(member), Value(Integer(3)));
    EXPECT_EQ(form.Get("NomeDoCampoValidado"), Value(""));
    EXPECT_EQ(form.Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    EXPECT_EQ(Contents(), before);
    return form.Get("DescricaoDaFalha").ToText();
}

} // namespace kova::family::test
