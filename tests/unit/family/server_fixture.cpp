#include "tests/unit/family/server_fixture.hpp"

namespace kova::family::test {

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
