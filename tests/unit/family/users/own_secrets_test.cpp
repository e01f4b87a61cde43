#include "tests/unit/family/users/users_fixture.hpp"

#include "family/users/own_secrets.hpp"
#include "tests/support/little_memory.hpp"

namespace kova::family::test {

class OwnSecretsOfAUser : public UsersTest {
protected:
    OwnSecretsOfAUser() { MakeUsers(); }

    std::string Change(const std::string& current, const OwnSecrets& wanted, const Author& author)
    {
        const Secret secret{std::string(current)};
        return ChangeOwnSecrets(Data(), secret, wanted, author, desk_.GetPlatform().Clock(), Cheap).why;
    }
    std::string Change(const std::string& current, const OwnSecrets& wanted)
    {
        return Change(current, wanted, lia_);
    }
};

TEST_F(OwnSecretsOfAUser, AreChangedByWhoeverKnowsThePassword)
{
    const Secret password("Laço Verde 33"), pin("2580");
    EXPECT_EQ(Change("Laço Azul 22", {&password, &pin}), "");
    EXPECT_TRUE(Enter("Lia", "Laço Verde 33").IsDone());
    EXPECT_FALSE(Enter("Lia", "Laço Azul 22").IsDone());
    EXPECT_TRUE(EnterByPin("Lia", "2580").IsDone());
    EXPECT_EQ(Change("Laço Verde 33", {.removesPin = true}), "");
    EXPECT_FALSE(EnterByPin("Lia", "2580").IsDone());
    EXPECT_TRUE(Enter("Lia", "Laço Verde 33").IsDone());
    EXPECT_EQ(
        Texts("select usuario || ' ' || depois from auditoria where tabela = 'usuario' and chave = 7 and"
              " operacao = 'alteracao' and usuario = '7 - Lia' order by codigo"),
        (std::vector<std::string>{R"(7 - Lia {"senha":"definida"})", R"(7 - Lia {"pin":"definida"})",
                                  R"(7 - Lia {"pin":"retirada"})"}));
}

TEST_F(OwnSecretsOfAUser, AreRefusedWhereTheyWillNotDo)
{
    const Secret shortOne("azul"), easy("1234");
    EXPECT_EQ(Change("Laço Azul 22", {&shortOne}), "A senha precisa ter pelo menos 8 caracteres.");
    EXPECT_EQ(Change("Laço Azul 22", {nullptr, &easy}), "O PIN é fácil demais de adivinhar. Escolha outro.");
    EXPECT_TRUE(Enter("Lia", "Laço Azul 22").IsDone());
}

TEST_F(OwnSecretsOfAUser, AreGuessedAsSlowlyAsAtSigningIn)
{
    const Secret password("Laço Verde 33");
    for (const char* words : {"A senha atual não confere.", "A senha atual não confere.",
                              "A senha atual não confere. A próxima tentativa pode ser feita em 2 segundos."})
        EXPECT_EQ(Change("errada 123", {&password}), words);
    EXPECT_EQ(Change("Laço Azul 22", {&password}),
              "Houve muitas tentativas erradas. Espere 2 segundos e tente de novo.");
    EXPECT_EQ(Enter("Lia", "Laço Azul 22").outcome, SignInAnswer::Outcome::Wait);
    EXPECT_EQ(LinesOf("entrada_recusada").size(), 3U);
    Pass(2);
    EXPECT_EQ(Change("Laço Azul 22", {&password}), "");
}

TEST_F(OwnSecretsOfAUser, StayWhereThereIsNoMemoryToProveThePasswordOfToday)
{
    const Secret former("Laço Verde 33"), wanted("Laço Rosa 44");
    ASSERT_EQ(SetPassword(Data(), 7, former, ana_).why, "");
    {
        const kova::test::LittleMemory memory;
        EXPECT_THROW(Change("Laço Verde 33", {&wanted}), Failure);
    }
    EXPECT_TRUE(LinesOf("entrada_recusada").empty());
    EXPECT_EQ(Change("Laço Verde 33", {&wanted}), "");
}

TEST_F(OwnSecretsOfAUser, AreNobodysWhoDoesNotEnter)
{
    const Secret password("Laço Verde 33");
    const std::string gone = "O usuário não existe mais, ou não entra mais.";
    for (const char* code : {"0", "99", "x", ""}) {
        const Author nobody{code, "Ninguém", "2026-11-20 09:04:05"};
        EXPECT_EQ(Change("Laço Azul 22", {&password}, nobody), gone) << code;
    }
    EXPECT_EQ(SaveAccount(Data(), {7, "Lia", Reception, false}, nullptr, ana_, Cheap).why, "");
    EXPECT_EQ(Change("Laço Azul 22", {&password}), gone);
}

} // namespace kova::family::test
