#include "tests/unit/family/users/users_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/users/tries.hpp"
#include "system/computer_name.hpp"
#include "tests/support/little_memory.hpp"

#include <map>
#include <thread>
#include <vector>

namespace kova::family::test {

namespace {

using Outcome = SignInAnswer::Outcome;

constexpr const char* WrongPassword =
    "O nome ou a senha não confere. Tente de novo. Quem ainda não tem, ou não lembra, pede a quem administra"
    " os usuários.";

} // namespace

class SigningIn : public UsersTest {
protected:
    SigningIn() { MakeUsers(); }

    /// Each as soon as it is looked at; behind ten of them the wait is of 256 seconds.
    void Fail(int times, const char* name = "Lia")
    {
        for (int time = 0; time < times; ++time) {
            Pass(300);
            EXPECT_EQ(Enter(name, "errada 123").outcome, Outcome::Wrong) << time;
        }
    }
};

TEST_F(SigningIn, TellsWhoItIsWithTheRoleAndItsRights)
{
    const SignInAnswer answer = Enter("Lia", "Laço Azul 22");
    EXPECT_TRUE(answer.IsDone());
    EXPECT_EQ(answer.code, 7);
    EXPECT_EQ(answer.name, "Lia");
    EXPECT_EQ(answer.role, "Recepção");
    EXPECT_EQ(answer.rights, RightsOf(Data(), 7));
    EXPECT_TRUE(answer.rights.contains(Right::Book));
    EXPECT_EQ(answer.text, "");
}

TEST_F(SigningIn, TakesTheNameWhateverItsCaseAccentsAndBlanks)
{
    EXPECT_EQ(
        SaveAccount(Data(), {7, "D’Ávila \"Lia\" Gonçalves", Reception, true}, nullptr, ana_, Cheap).why, "");
    for (const char* name :
         {"D’Ávila \"Lia\" Gonçalves", "  d'avila \"lia\" goncalves ", "D'ÁVILA \"LIA\" GONÇALVES\n"})
        EXPECT_TRUE(Enter(name, "Laço Azul 22").IsDone()) << name;
    EXPECT_EQ(Enter("D’Ávila Lia Gonçalves", "Laço Azul 22").outcome, Outcome::Wrong);
}

TEST_F(SigningIn, RefusesWhatIsWrongWithTheSameWordsForAll)
{
    const std::string longOne(1000, 'x');
    const std::map<std::string, std::string> tries = {
        {"Lia", "laço azul 22"},     {"Ana", "Laço Azul 22"},
        {"Nina", "Laço Azul 22"},    {"", ""},
        {longOne, longOne},          {"Jos\xE9\xFF", "Jos\xE9\xFF senha"},
        {"' or '1'='1", "' or 1=1"}, {std::string("L\0ia", 4), "x"}};
    for (const auto& [name, password] : tries) {
        const SignInAnswer answer = Enter(name, password);
        EXPECT_EQ(answer.outcome, Outcome::Wrong) << name;
        EXPECT_EQ(answer.text, WrongPassword);
        EXPECT_EQ(answer.code, 0);
        EXPECT_TRUE(answer.rights.empty());
    }
}

TEST_F(SigningIn, IsSlowedDownByWrongTriesAndLooksAtNoneMeanwhile)
{
    for (const long long wait : {0, 0, 2, 4, 8, 16, 32, 64, 128, 256, 300, 300}) {
        Pass(300);
        const SignInAnswer answer = Enter("Lia", "errada 123");
        EXPECT_EQ(answer.outcome, Outcome::Wrong);
        EXPECT_EQ(answer.wait, wait);
        EXPECT_EQ(answer.text,
                  wait == 0 ? WrongPassword
                            : "O nome ou a senha não confere. A próxima tentativa pode ser feita em "
                          + WordsOfWait(wait) + ".");
    }
    for (const char* password : {"errada 123", "Laço Azul 22"}) {
        const SignInAnswer answer = Enter(" lia", password);
        EXPECT_EQ(answer.outcome, Outcome::Wait) << password;
        EXPECT_GT(answer.wait, 200);
        EXPECT_LE(answer.wait, 300);
        EXPECT_EQ(answer.text,
                  "Houve muitas tentativas erradas com este nome. Espere " + WordsOfWait(answer.wait)
                      + " e tente de novo.");
    }
    EXPECT_EQ(Texts("select cast(erros as text) from tentativa_de_entrada"), std::vector<std::string>{"12"});
    EXPECT_EQ(LinesOf("entrada_recusada").size(), 12U);
}

TEST_F(SigningIn, CountsNoTryAgainstAnybodyThatThereWasNoMemoryFor)
{
    const Secret password("Laço Verde 33");
    ASSERT_EQ(SetPassword(Data(), 7, password, ana_).why, "");
    for (int time = 0; time < 4; ++time) {
        const kova::test::LittleMemory memory;
        try {
            Enter("Lia", "Laço Verde 33");
            ADD_FAILURE();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Description(), kova::test::LittleMemory::Told);
        }
    }
    EXPECT_TRUE(LinesOf("entrada_recusada").empty());
    EXPECT_TRUE(Enter("Lia", "Laço Verde 33").IsDone()) << "at once";
}

TEST_F(SigningIn, IsOpenAgainWhenTheTimeIsOver)
{
    Fail(10);
    Pass(156);
    EXPECT_EQ(Enter("Lia", "Laço Azul 22").outcome, Outcome::Wait);
    Pass(100);
    EXPECT_TRUE(Enter("Lia", "Laço Azul 22").IsDone());
}

/// Whoever sets the clock back tries no faster, and one that was wrong keeps nobody outside for years.
TEST_F(SigningIn, IsWaitedForWithAClockThatWasSetBack)
{
    Fail(10);
    Pass(-7200);
    for (const char* password : {"errada 123", "Laço Azul 22"}) {
        const SignInAnswer answer = Enter("Lia", password);
        EXPECT_EQ(answer.outcome, Outcome::Wait) << password;
        EXPECT_GE(answer.wait, 250);
        EXPECT_LE(answer.wait, 256);
    }
    Pass(128);
    EXPECT_EQ(Enter("Lia", "Laço Azul 22").outcome, Outcome::Wait) << "it is not begun anew each time";
    Pass(128);
    EXPECT_TRUE(Enter("Lia", "Laço Azul 22").IsDone());
}

TEST_F(SigningIn, ForgetsWrongTriesAfterARightOne)
{
    Fail(10);
    Pass(256);
    EXPECT_TRUE(Enter("Lia", "Laço Azul 22").IsDone());
    EXPECT_EQ(Count("tentativa_de_entrada"), 0);
    Fail(2);
    EXPECT_TRUE(Enter("Lia", "Laço Azul 22").IsDone());
}

TEST_F(SigningIn, ForgetsWrongTriesAfterADay)
{
    Fail(3);
    Run("update tentativa_de_entrada set ultimo_erro = ultimo_erro - 86401");
    Enter("Ninguém", "errada 123");
    EXPECT_EQ(Count("tentativa_de_entrada"), 1);
}

TEST_F(SigningIn, IsSlowedDownForOneNameAndNoOther)
{
    Fail(10);
    EXPECT_TRUE(Enter("Ana", "Gato-Preto 1").IsDone());
}

TEST_F(SigningIn, IsSlowedDownAtAllDesks)
{
    Fail(10);
    const std::shared_ptr<Database> other = OpenDatabase(host_.DataSource());
    const Secret right("Laço Azul 22");
    EXPECT_EQ(SignIn(*other, {"Lia", right}, desk_.GetPlatform().Clock(), Cheap).outcome, Outcome::Wait);
}

/// On a file the clock stands, and behind the third none is looked at.
TEST_F(SigningIn, IsSlowedDownForTwoDesksThatTryAtOnce)
{
    std::vector<std::jthread> desks;
    for (int desk = 0; desk < 2; ++desk)
        desks.emplace_back([this] {
            const std::shared_ptr<Database> own = OpenDatabase(host_.DataSource());
            const Secret wrong("errada 123");
            for (int time = 0; time < 10; ++time)
                SignIn(*own, {"Lia", wrong}, desk_.GetPlatform().Clock(), Cheap);
        });
    desks.clear();
    const int counted = std::stoi(Texts("select cast(erros as text) from tentativa_de_entrada").at(0));
    EXPECT_EQ(LinesOf("entrada_recusada").size(), static_cast<std::size_t>(counted));
    if (TestsRunOnServer())
        EXPECT_GE(counted, 3);
    else
        EXPECT_EQ(counted, 3);
    const Secret right("Laço Azul 22");
    EXPECT_EQ(SignIn(Data(), {"Lia", right}, desk_.GetPlatform().Clock(), Cheap).outcome, Outcome::Wait);
}

TEST_F(SigningIn, IsSlowedDownByPinsAndPasswordsTogether)
{
    const Secret pin("2580");
    EXPECT_EQ(SetPin(Data(), 7, &pin, ana_, Cheap).why, "");
    EXPECT_EQ(EnterByPin("Lia", "2581").text,
              "O nome ou o PIN não confere. Tente de novo. Quem ainda não tem, ou não lembra, pede a quem"
              " administra os usuários.");
    Fail(8);
    Pass(300);
    EXPECT_EQ(EnterByPin("Lia", "0852").wait, 256);
    EXPECT_EQ(EnterByPin("Lia", "2580").outcome, Outcome::Wait);
    Pass(256);
    EXPECT_TRUE(EnterByPin("Lia", "2580").IsDone());
}

TEST_F(SigningIn, TakesNoPinForAPasswordNorOneThatIsGone)
{
    const Secret pin("2580");
    EXPECT_EQ(SetPin(Data(), 7, &pin, ana_, Cheap).why, "");
    EXPECT_EQ(Enter("Lia", "2580").outcome, Outcome::Wrong);
    EXPECT_EQ(EnterByPin("Lia", "Laço Azul 22").outcome, Outcome::Wrong);
    EXPECT_EQ(SetPin(Data(), 7, nullptr, ana_, Cheap).why, "");
    EXPECT_EQ(EnterByPin("Lia", "2580").outcome, Outcome::Wrong);
    EXPECT_EQ(EnterByPin("Lia", "").outcome, Outcome::Wrong);
}

TEST_F(SigningIn, TakesEitherWhereItIsNotSaidWhich)
{
    const auto enter = [this](const std::string& typed) {
        const Secret secret{std::string(typed)};
        return SignIn(Data(), {"Lia", secret, SignInTry::Kind::Either}, desk_.GetPlatform().Clock(), Cheap);
    };
    const auto setPin = [this](const char* typed) {
        const Secret pin{std::string(typed)};
        EXPECT_EQ(SetPin(Data(), 7, &pin, ana_, Cheap).why, "");
    };
    EXPECT_TRUE(enter("Laço Azul 22").IsDone());
    EXPECT_EQ(enter("2580").text,
              "O nome, o PIN ou a senha não confere. Tente de novo. Quem ainda não tem, ou não lembra, pede a"
              " quem administra os usuários.");
    setPin("2580");
    EXPECT_TRUE(enter("2580").IsDone());
    EXPECT_TRUE(enter("Laço Azul 22").IsDone());
    EXPECT_EQ(LinesOf("entrada"),
              (std::vector<std::string>{R"(7 7 - Lia entrada {"meio":"senha"})",
                                        R"(7 7 - Lia entrada {"meio":"pin"})",
                                        R"(7 7 - Lia entrada {"meio":"senha"})"}));

    // Eight digits may be the one or the other, and are one try.
    const Secret digits("19840512");
    EXPECT_EQ(SetPassword(Data(), 7, digits, ana_, Cheap).why, "");
    setPin("84051219");
    EXPECT_TRUE(enter("19840512").IsDone());
    EXPECT_TRUE(enter("84051219").IsDone());
    enter("11223344");
    EXPECT_EQ(Texts("select cast(erros as text) from tentativa_de_entrada"), std::vector<std::string>{"1"});
}

TEST_F(SigningIn, SlowsDownForANameOfNobodyInTheSameWay)
{
    Fail(9, "Nina");
    Pass(300);
    EXPECT_EQ(
        Enter("Nina", "errada 123").text,
        "O nome ou a senha não confere. A próxima tentativa pode ser feita em 4 minutos e 16 segundos.");
    EXPECT_EQ(Enter("Nina", "errada 123").outcome, Outcome::Wait);
    EXPECT_EQ(Texts("select identificador from tentativa_de_entrada where identificador like '%nina%'"),
              std::vector<std::string>());
}

TEST_F(SigningIn, IsNotForThoseWithoutAPasswordOrARole)
{
    Run("update usuario set senha = null where codigo = 7");
    for (const char* password : {"", "Laço Azul 22"})
        EXPECT_EQ(Enter("Lia", password).outcome, Outcome::Wrong);
    const Secret again("Laço Azul 23");
    EXPECT_EQ(SetPassword(Data(), 7, again, ana_, Cheap).why, "");
    GiveLia(0);
    EXPECT_EQ(Enter("Lia", "Laço Azul 23").text, WrongPassword);
}

TEST_F(SigningIn, TellsTheInactiveOnceTheyHaveProvedWhoTheyAre)
{
    EXPECT_EQ(SaveAccount(Data(), {7, "Lia", Reception, false}, nullptr, ana_, Cheap).why, "");
    EXPECT_EQ(Enter("Lia", "errada 123").text, WrongPassword);
    const SignInAnswer answer = Enter("Lia", "Laço Azul 22");
    EXPECT_EQ(answer.outcome, Outcome::Inactive);
    EXPECT_EQ(answer.text, "Lia está inativo e não entra mais. Peça a quem administra os usuários.");
    EXPECT_EQ(answer.code, 0);
    EXPECT_TRUE(answer.rights.empty());
    EXPECT_EQ(Count("tentativa_de_entrada"), 0) << "whoever is active again waits for nothing";
}

TEST_F(SigningIn, KeepsThePasswordAnewAtTheCostOfToday)
{
    const std::string former = Texts("select senha from usuario where codigo = 7").front();
    const Secret right("Laço Azul 22");
    constexpr PasswordCost dearer{2, 16384};
    EXPECT_TRUE(SignIn(Data(), {"Lia", right}, desk_.GetPlatform().Clock(), dearer).IsDone());
    const std::string now = Texts("select senha from usuario where codigo = 7").front();
    EXPECT_NE(now, former);
    EXPECT_FALSE(IsOutdated(now, dearer));
    EXPECT_TRUE(SignIn(Data(), {"Lia", right}, desk_.GetPlatform().Clock(), dearer).IsDone());
    EXPECT_EQ(Texts("select senha from usuario where codigo = 7").front(), now);
}

TEST_F(SigningIn, StandsInTheAuditWithWhoItWasAndNoSecret)
{
    EXPECT_TRUE(Enter("Lia", "Laço Azul 22").IsDone());
    Enter("Lia", "errada 123");
    Enter("minha senha secreta", "errada 123");
    EXPECT_EQ(SaveAccount(Data(), {7, "Lia", Reception, false}, nullptr, ana_, Cheap).why, "");
    Enter("Lia", "Laço Azul 22");
    EXPECT_EQ(LinesOf("entrada"), std::vector<std::string>{R"(7 7 - Lia entrada {"meio":"senha"})"});
    EXPECT_EQ(
        LinesOf("entrada_recusada"),
        (std::vector<std::string>{R"(7 7 - Lia entrada_recusada {"meio":"senha","motivo":"senha"})",
                                  R"(0 0 - Desconhecido entrada_recusada {"meio":"senha","motivo":"senha"})",
                                  R"(7 7 - Lia entrada_recusada {"meio":"senha","motivo":"inativo"})"}));
    EXPECT_EQ(Texts("select distinct posto || ' ' || momento from auditoria where operacao like 'entrada%'"),
              std::vector<std::string>{system::ComputerName() + " 2026-11-20 09:04:05"});
    for (const std::string& line : Audit())
        EXPECT_TRUE(line.find("Azul") == std::string::npos && line.find("argon2") == std::string::npos
                    && line.find("errada") == std::string::npos && line.find("secreta") == std::string::npos)
            << line;
}

TEST_F(SigningIn, IsNotSlowedDownByADatabaseThatTakesNoWrites)
{
    Break("auditoria", "before insert");
    EXPECT_THROW(Enter("Lia", "Laço Azul 22"), DatabaseFailure);
    EXPECT_THROW(Enter("Lia", "errada 123"), DatabaseFailure);
    Mend("auditoria");
    EXPECT_EQ(Count("tentativa_de_entrada"), 0);
    EXPECT_TRUE(Enter("Lia", "Laço Azul 22").IsDone());
}

} // namespace kova::family::test
