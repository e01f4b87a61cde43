#include "tests/unit/family/users/users_fixture.hpp"

#include "family/data/engine/database.hpp"
#include "family/users/idle_lock.hpp"

namespace kova::family::test {

class TheIdleLock : public UsersTest {
protected:
    TheIdleLock() { MakeUsers(); }
};

TEST_F(TheIdleLock, LocksAfterTheUsualMinutesWhereNobodyHasSetOthers)
{
    EXPECT_EQ(IdleMinutes(Data()), 15);
    for (const char* garbage : {"", "x", "-1", "5 ", "99999999999", "1441"}) {
        Data().Session() << "delete from ajuste";
        Data().Session() << "insert into ajuste (nome, valor) values ('bloqueio.minutos', :valor)",
            soci::use(std::string(garbage));
        EXPECT_EQ(IdleMinutes(Data()), 15) << garbage;
    }
}

TEST_F(TheIdleLock, IsSetForAllDesksWithALineInTheAudit)
{
    EXPECT_EQ(SetIdleMinutes(Data(), 5, ana_), "");
    EXPECT_EQ(SetIdleMinutes(Data(), 5, ana_), "");
    EXPECT_EQ(IdleMinutes(Data()), 5);
    EXPECT_EQ(SetIdleMinutes(Data(), 0, ana_), "");
    EXPECT_EQ(IdleMinutes(Data()), 0);
    EXPECT_EQ(
        Texts("select operacao || ' ' || usuario || ' ' || depois from auditoria where tabela = 'ajuste'"
              " order by codigo"),
        (std::vector<std::string>{R"(inclusao 8 - Ana {"codigo":1,"nome":"bloqueio.minutos","valor":"5"})",
                                  R"(alteracao 8 - Ana {"valor":"0"})"}));
}

TEST_F(TheIdleLock, TakesADayAtMost)
{
    for (const int impossible : {-1, 1441})
        EXPECT_EQ(SetIdleMinutes(Data(), impossible, ana_), "Os minutos sem uso podem ser de 0 a 1440.");
    EXPECT_EQ(SetIdleMinutes(Data(), 1440, ana_), "");
    EXPECT_EQ(IdleMinutes(Data()), 1440);
}

TEST_F(TheIdleLock, IsSetByThoseWhoAdministerTheUsersAndByNobodyElse)
{
    EXPECT_THROW(SetIdleMinutes(Data(), 5, lia_), RightDenied);
    EXPECT_EQ(IdleMinutes(Data()), 15);
    EXPECT_EQ(LinesOf("direito_negado").size(), 1U);
}

} // namespace kova::family::test
