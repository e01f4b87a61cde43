#include "tests/unit/family/server_fixture.hpp"

namespace kova::family::test {

AppointmentInput Bath(const Text& date)
{
    AppointmentInput input;
    input.kind = AppointmentInput::SimplifiedKind;
    input.status = 1;
    input.serviceType = 4;
    input.service = 2;
    input.employee = 2;
    input.customerName = "Íris";
    input.animalName = "Bidu";
    input.startDate = input.endDate = date;
    input.startTime = "09:00";
    input.endTime = "10:00";
    return input;
}

EmployeeRename::EmployeeRename(Database& database)
    : statement_(
        (database.Session().prepare << "update funcionario set nome = nome || '+' where codigo = :codigo",
         soci::use(employee_, "codigo")))
{
}

void EmployeeRename::Run(int employee)
{
    employee_ = employee;
    statement_.execute(true);
}

int PostgresqlShop::Booked() const
{
    const std::string booked = shop_.Run("select count(*) from agendamento where numero > 9").front();
    EXPECT_EQ(shop_.Run("select count(*) from auditoria where operacao = 'inclusao'").front(), booked);
    return std::stoi(booked);
}

int PostgresqlShop::WaitingForALock() const
{
    return std::stoi(shop_
                         .Run("select count(*) from pg_stat_activity where wait_event_type = 'Lock'"
                              " and datname = current_database()")
                         .front());
}

} // namespace kova::family::test
