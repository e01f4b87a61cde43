#pragma once

#include "tests/support/postgres_server.hpp"
#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/engine/write_transaction.hpp"

namespace kova::family::test {

/// What the failure of `action` says; "" where it ends well.
template <class Action> std::string FailureOf(Action action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Description();
    }
    return {};
}

/// Adds a "+" to an employee's name.
class EmployeeRename : public KeptStatement {
public:
    explicit EmployeeRename(Database& database);
    void Run(int employee);

private:
    int employee_ = 0;
    soci::statement statement_;
};

/// The known shop on the program's own server.
class PostgresqlShop : public testing::Test {
protected:
    static kova::test::PostgresServer& Server() { return kova::test::PostgresServer::Shared(); }
    /// Appointments that were added, each with its line in the audit.
    int Booked() const;
    /// Connections to the shop that wait for a lock.
    int WaitingForALock() const;

    kova::test::PostgresDatabase shop_{Server(), Server().Model("shop", MakeShop)};
};

} // namespace kova::family::test
