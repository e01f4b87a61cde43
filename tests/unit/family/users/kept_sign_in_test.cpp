#include "tests/unit/family/users/users_fixture.hpp"

#include "family/users/kept_sign_in.hpp"
#include "family/users/who_enters.hpp"
#include "system/computer_name.hpp"

namespace kova::family::test {

class KeptSignIn : public UsersTest {
protected:
    /// Ana alone enters.
    KeptSignIn()
    {
        MakeUsers();
        GiveLia(0);
    }

    SignInAnswer EnterBy(const std::string& token)
    {
        return SignInByToken(Data(), token, desk_.GetPlatform().Clock());
    }
    std::string Names()
    {
        std::string names;
        for (const UserWhoEnters& user : UsersWhoEnter(Data()))
            names += std::to_string(user.code) + " " + user.name + "\n";
        return names;
    }
};

TEST_F(KeptSignIn, LetsTheOnlyUserInWithALineInTheAudit)
{
    const std::string token = SignInToken(Data(), 8);
    EXPECT_EQ(token.size(), 32U);
    const SignInAnswer answer = EnterBy(token);
    EXPECT_TRUE(answer.IsDone());
    EXPECT_EQ(answer.code, 8);
    EXPECT_EQ(answer.name, "Ana");
    EXPECT_EQ(answer.role, "Administração");
    EXPECT_EQ(answer.rights, RightsOf(Data(), 8));
    EXPECT_EQ(LinesOf("entrada"), std::vector<std::string>{R"(8 8 - Ana entrada {"meio":"computador"})"});
}

TEST_F(KeptSignIn, EndsWithThePasswordAndWithASecondUser)
{
    const std::string token = SignInToken(Data(), 8);
    GiveLia(Reception);
    EXPECT_FALSE(EnterBy(token).IsDone());
    EXPECT_EQ(SignInToken(Data(), 8), "");
    GiveLia(0);
    EXPECT_TRUE(EnterBy(token).IsDone());
    const Secret another("Gato-Preto 2");
    EXPECT_EQ(SetPassword(Data(), 8, another, ana_, Cheap).why, "");
    EXPECT_EQ(EnterBy(token).outcome, SignInAnswer::Outcome::Wrong);
    EXPECT_EQ(LinesOf("entrada_recusada"), std::vector<std::string>());
    EXPECT_EQ(Count("tentativa_de_entrada"), 0);
}

TEST_F(KeptSignIn, IsNothingThatCanBeMadeUp)
{
    const std::string kept = Texts("select senha from usuario where codigo = 8").front();
    for (const std::string& token :
         {std::string(), std::string("8"), std::string(32, '0'), DigestOf(""), DigestOf(kept), kept,
          std::string("Jos\xE9\xFF"), std::string(1000, 'x')})
        EXPECT_FALSE(EnterBy(token).IsDone()) << token;
    EXPECT_EQ(SignInToken(Data(), 7), "");
    EXPECT_EQ(SignInToken(Data(), 99), "");
    GiveLia(Reception);
    EXPECT_FALSE(EnterBy("").IsDone()) << "what no token is made of lets in nobody either";
}

/// He takes the place by it, and is none whom this computer knows.
TEST_F(KeptSignIn, EndsWithASecondUserWhoHasAPinAlone)
{
    const std::string token = SignInToken(Data(), 8);
    GiveLia(Reception);
    Run("update usuario set senha = null where codigo = 7");
    EXPECT_TRUE(EnterBy(token).IsDone());
    const Secret pin("2580");
    EXPECT_EQ(SetPin(Data(), 7, &pin, ana_, Cheap).why, "");
    EXPECT_FALSE(EnterBy(token).IsDone());
    EXPECT_EQ(SignInToken(Data(), 8), "");
    EXPECT_EQ(Names(), "8 Ana\n7 Lia\n");
}

/// The settings go along where somebody copies them to another computer.
TEST_F(KeptSignIn, IsOfThisComputerAlone)
{
    const std::string kept = Texts("select senha from usuario where codigo = 8").front();
    EXPECT_FALSE(EnterBy(DigestOf("OUTRO-POSTO\n" + kept)).IsDone());
    EXPECT_FALSE(EnterBy(DigestOf("\n" + kept)).IsDone());
    EXPECT_TRUE(EnterBy(DigestOf(system::ComputerName() + "\n" + kept)).IsDone());
}

TEST_F(KeptSignIn, NamesThoseWhoCanEnterInTheOrderOfTheirNames)
{
    EXPECT_EQ(Names(), "8 Ana\n");
    GiveLia(Reception);
    const Secret password("Laço Azul 22");
    EXPECT_EQ(SaveAccount(Data(), {0, "Ágata", Reception, true}, &password, ana_, Cheap).why, "");
    EXPECT_EQ(SaveAccount(Data(), {0, "Bia", Reception, false}, &password, ana_, Cheap).why, "");
    EXPECT_EQ(SaveAccount(Data(), {0, "Caio", Reception, true}, nullptr, ana_, Cheap).why, "");
    const std::string names = Names();
    EXPECT_TRUE(names.ends_with(" Ágata\n8 Ana\n7 Lia\n")) << names;
}

} // namespace kova::family::test
