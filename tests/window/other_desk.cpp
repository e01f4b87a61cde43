#include "tests/window/other_desk.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"

#include <gtest/gtest.h>

namespace kova::window_test {

namespace {

family::Key Number(soci::session& session, const std::string& selection)
{
    family::Key number = 0;
    session << selection, soci::into(number);
    return number;
}

} // namespace

OtherDesk::OtherDesk(const std::string& database, const std::string& computer)
    : database_(family::OpenDatabase(database)), marcos_{"8", "Marcos", "2026-11-20 09:30:00", computer}
{
}

family::Key OtherDesk::Books(const std::string& from, const std::string& until)
{
    soci::session& session = database_->Session();
    family::AppointmentInput input;
    input.status = 1;
    input.customer = 10;
    input.animal = 14;
    input.serviceType = 4;
    input.service =
        static_cast<Double>(Number(session,
                                   "select min(codigo) from servico where numero_do_tipo_de_servico = 4"
                                   " and situacao = 1 and quantidade_de_sessoes is null"));
    input.employee =
        static_cast<Long>(Number(session, "select min(codigo) from funcionario where situacao = 1"));
    input.startDate = input.endDate = "20/11/2026";
    input.startTime = from;
    input.endTime = until;
    input.remark = "Laço azul.";
    // The day is a holiday, and Marcos wants it so.
    input.validated = true;
    const family::WriteAnswer answer = AddAppointments(*database_, input, marcos_);
    EXPECT_TRUE(answer.IsDone()) << answer.field << " " << answer.text;
    return Number(session, "select max(numero) from agendamento");
}

void OtherDesk::Changes(family::Key number, const std::function<void(family::AppointmentInput&)>& change)
{
    auto input = family::InputOf(*family::FindByKey<family::AppointmentRow>(*database_, number));
    input.validated = true;
    change(input);
    const family::WriteAnswer answer = AlterAppointment(*database_, input, marcos_);
    EXPECT_TRUE(answer.IsDone()) << answer.field << " " << answer.text;
}

void OtherDesk::Deletes(family::Key number)
{
    family::AppointmentInput input;
    input.number = static_cast<Double>(number);
    const family::WriteAnswer answer = DeleteAppointment(*database_, input, marcos_);
    EXPECT_TRUE(answer.IsDone()) << answer.field << " " << answer.text;
}

} // namespace kova::window_test
