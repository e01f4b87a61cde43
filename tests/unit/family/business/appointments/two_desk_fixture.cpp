#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "tests/unit/family/business/appointments/record_form.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"

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
    GoTo(*records, number);
    auto form = std::make_unique<Agenda>(desk_);
    SetFromRecord(*form, *records);
    form->Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia"));
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
