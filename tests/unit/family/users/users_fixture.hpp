#pragma once

#include "tests/unit/family/business/appointments/desk_fixture.hpp"
#include "tests/unit/family/users/cheap.hpp"

#include "family/users/accounts.hpp"
#include "family/users/sign_in.hpp"
#include "family/users/user_rights.hpp"

namespace kova::family::test {

/// The roles that every shop begins with.
inline constexpr Key Administration = 1, Management = 2, Reception = 3;

/// The shop of DeskTest, at first without users. Ana is 8, Lia, who works at its desk, is 7.
class UsersTest : public DeskTest {
protected:
    UsersTest();

    Database& Data();
    /// Ana administers from then on, with the password "Gato-Preto 1", and Lia has that role and the password
    /// "Laço Azul 22".
    void MakeUsers(Key roleOfLia = Reception);
    /// Ana gives Lia that role.
    void GiveLia(Key role);
    /// Ana has Lia's role allow that and nothing else.
    void Allow(const Rights& rights);

    SignInAnswer Enter(const std::string& name, const std::string& password);
    SignInAnswer EnterByPin(const std::string& name, const std::string& pin);
    /// Time goes by at the desk and, where there is one, at the server.
    void Pass(long long seconds);

    /// The audit's lines with one of these operations: "KEY USER OPERATION AFTER".
    std::vector<std::string> LinesOf(const std::string& operation);

    const Author ana_{"8", "Ana", "2026-11-20 09:04:05", "BALCAO-1"};
    const Author lia_{"7", "Lia", "2026-11-20 09:04:05", "BALCAO-1"};
};

} // namespace kova::family::test
