#include "tests/unit/family/users/users_fixture.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/numbering.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

UsersTest::UsersTest()
{
    Insert(Data(), UserRow{7, "Lia"});
    Insert(Data(), UserRow{8, "Ana"});
    NumberOn(Data());
}

Database& UsersTest::Data() { return *SharedDatabase(host_.DataSource()); }

void UsersTest::MakeUsers(Key roleOfLia)
{
    const Secret ofAna("Gato-Preto 1"), ofLia("Laço Azul 22");
    EXPECT_EQ(SaveAccount(Data(), {8, "Ana", Administration, true}, &ofAna, ana_, Cheap).why, "");
    EXPECT_EQ(SaveAccount(Data(), {7, "Lia", roleOfLia, true}, &ofLia, ana_, Cheap).why, "");
}

void UsersTest::GiveLia(Key role)
{
    EXPECT_EQ(SaveAccount(Data(), {7, "Lia", role, true}, nullptr, ana_, Cheap).why, "");
}

void UsersTest::Allow(const Rights& rights)
{
    EXPECT_EQ(SaveRole(Data(), {Reception, "Recepção", rights}, ana_).why, "");
}

SignInAnswer UsersTest::Enter(const std::string& name, const std::string& password)
{
    const Secret secret{std::string(password)};
    return SignIn(Data(), {name, secret}, desk_.GetPlatform().Clock(), Cheap);
}

SignInAnswer UsersTest::EnterByPin(const std::string& name, const std::string& pin)
{
    const Secret secret{std::string(pin)};
    return SignIn(Data(), {name, secret, SignInTry::Kind::Pin}, desk_.GetPlatform().Clock(), Cheap);
}

void UsersTest::Pass(long long seconds)
{
    if (TestsRunOnServer()) {
        Run("update tentativa_de_entrada set ultimo_erro = ultimo_erro - " + std::to_string(seconds));
        return;
    }
    TimeOfDay& time = desk_.now.time;
    const long long all = (time.hour * 60LL + time.minute) * 60 + time.second + seconds;
    time = {static_cast<int>(all / 3600), static_cast<int>(all / 60 % 60), static_cast<int>(all % 60)};
}

std::vector<std::string> UsersTest::LinesOf(const std::string& operation)
{
    return Texts("select chave || ' ' || usuario || ' ' || operacao || ' ' || coalesce(depois, '-')"
                 " from auditoria where operacao = '"
                 + operation + "' order by codigo");
}

} // namespace kova::family::test
