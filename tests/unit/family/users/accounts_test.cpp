#include "tests/unit/family/users/users_fixture.hpp"

#include "family/data/sources/data_source.hpp"

#include <map>

namespace kova::family::test {

namespace {

constexpr const char* NobodyLeft =
    "Ninguém mais poderia administrar os usuários desta loja. Antes dê a outro usuário ativo, com senha, um"
    " papel que administra os usuários.";
constexpr const char* FirstHasTo =
    "O primeiro usuário com um papel precisa poder administrar os usuários e ter uma senha. Escolha o papel"
    " Administração e defina a senha.";

} // namespace

class Accounts : public UsersTest {
protected:
    std::string Save(const Account& account, const char* password = nullptr)
    {
        if (!password)
            return SaveAccount(Data(), account, nullptr, ana_, Cheap).why;
        const Secret secret{std::string(password)};
        return SaveAccount(Data(), account, &secret, ana_, Cheap).why;
    }
    std::string SaveRights(Key role, const Rights& rights, const std::string& name = "Papel")
    {
        return SaveRole(Data(), {role, name, rights}, ana_).why;
    }

    /// Everything that tells who may do what, and the audit.
    std::vector<std::string> All()
    {
        std::vector<std::string> all = Audit();
        for (const char* table : {"usuario", "papel", "papel_direito"}) {
            for (std::string& row : RowsOf(table, "1 = 1"))
                all.push_back(table + (" " + row));
        }
        return all;
    }
    void ExpectRefused(const std::string& told, const std::function<std::string()>& write)
    {
        const std::vector<std::string> before = All();
        EXPECT_EQ(write(), told);
        EXPECT_EQ(All(), before) << told;
    }
};

TEST_F(Accounts, BeginWithOneWhoAdministersAndHasAPassword)
{
    ExpectRefused(FirstHasTo, [&] { return Save({8, "Ana", Reception, true}, "Gato-Preto 1"); });
    ExpectRefused(FirstHasTo, [&] { return Save({8, "Ana", Administration, true}); });
    ExpectRefused(FirstHasTo, [&] { return Save({8, "Ana", Administration, false}, "Gato-Preto 1"); });
    EXPECT_EQ(Save({8, "Ana", 0, true}, "Gato-Preto 1"), "") << "a name without a role is no user yet";
    EXPECT_FALSE(HasUsers(Data()));
    EXPECT_EQ(Save({8, "Ana", Administration, true}), "");
    EXPECT_TRUE(HasUsers(Data()));
}

TEST_F(Accounts, OfNewUsersAreNumberedAndCanSignIn)
{
    MakeUsers();
    const Secret password("Focinho 2026"), pin("2580");
    const AccountAnswer answer =
        SaveAccount(Data(), {0, " Zé  d'Ávila\n", Management, true}, &password, ana_, Cheap);
    EXPECT_TRUE(answer.IsDone()) << answer.why;
    EXPECT_GT(answer.code, 8);
    EXPECT_EQ(SetPin(Data(), answer.code, &pin, ana_, Cheap).why, "");
    EXPECT_EQ(Enter("ze  d'avila", "Focinho 2026").code, answer.code);
    EXPECT_EQ(EnterByPin("Zé  d'Ávila", "2580").role, "Gerência");
}

TEST_F(Accounts, NeedANameThatNobodyElseHas)
{
    MakeUsers();
    const std::map<std::string, std::string> names = {
        {"", "Informe o nome."},
        {" \n", "Informe o nome."},
        {"ANA", "Já há um usuário com este nome."},
        {" lia\r\n", "Já há um usuário com este nome."},
        {"\uFF21n\u00E1", "Já há um usuário com este nome."},
        {"Ana\u200B", "O nome só pode ter caracteres que se veem."},
        {"\u202EaiL", "O nome só pode ter caracteres que se veem."},
        {"\u3164", "O nome só pode ter caracteres que se veem."},
        {std::string(1000, 'x'), "O nome pode ter até 60 caracteres."},
        {std::string(61, 'x'), "O nome pode ter até 60 caracteres."},
    };
    for (const auto& [name, told] : names)
        ExpectRefused(told, [&, &name = name] { return Save({0, name, Reception, true}, "Focinho 2026"); });
    for (const std::string& name : {std::string(60, 'x'), std::string("'; drop table usuario; --"),
                                    std::string("\"Bia\""), std::string("Jos\xE9")})
        EXPECT_EQ(Save({0, name, Reception, true}, "Focinho 2026"), "") << name;
    EXPECT_EQ(Texts("select nome from usuario where nome like 'Jos%'"),
              std::vector<std::string>{"Jos\uFFFD"});
    EXPECT_TRUE(Enter("'; drop table usuario; --", "Focinho 2026").IsDone());
}

/// Nobody signs in with it.
TEST_F(Accounts, WithoutARoleMayBearTheNameOfAnother)
{
    MakeUsers();
    EXPECT_EQ(SaveAccount(Data(), {0, "Ana", 0, true}, nullptr, ana_, Cheap).why, "");
    EXPECT_EQ(Texts("select nome from usuario where nome = 'Ana'").size(), 2U);
    EXPECT_TRUE(Enter("Ana", "Gato-Preto 1").IsDone());
}

TEST_F(Accounts, LookAlikeWhateverTheBlanksBetweenTheirWords)
{
    MakeUsers();
    EXPECT_EQ(Save({0, "Ana  Paula", Reception, true}, "Focinho 2026"), "");
    ExpectRefused("Já há um usuário com este nome.", [&] {
        return Save({0, "ana\u00A0paula", Reception, true}, "Focinho 2026");
    });
    EXPECT_TRUE(Enter(" Ana Paula ", "Focinho 2026").IsDone());
    for (int time = 0; time < 3; ++time)
        Enter("Ana   Paula", "errada 123");
    EXPECT_EQ(Enter("Ana Paula", "Focinho 2026").outcome, SignInAnswer::Outcome::Wait);
    EXPECT_EQ(Texts("select cast(erros as text) from tentativa_de_entrada"), std::vector<std::string>{"3"});
}

TEST_F(Accounts, NeedAPasswordThatWillDo)
{
    MakeUsers();
    ExpectRefused("A senha precisa ter pelo menos 8 caracteres.", [&] {
        return Save({7, "Lia", Reception, true}, "curta");
    });
    const Secret shortOne("curta"), letters("abcd");
    ExpectRefused("A senha precisa ter pelo menos 8 caracteres.",
                  [&] { return SetPassword(Data(), 7, shortOne, ana_, Cheap).why; });
    ExpectRefused("O PIN precisa ter de 4 a 8 algarismos.",
                  [&] { return SetPin(Data(), 7, &letters, ana_, Cheap).why; });
}

TEST_F(Accounts, AreGoneOrReferToWhatIsGone)
{
    MakeUsers();
    const Secret password("Focinho 2026");
    ExpectRefused("O usuário não existe mais.", [&] { return Save({4711, "Zé", Reception, true}); });
    ExpectRefused("O usuário não existe mais.",
                  [&] { return SetPassword(Data(), 4711, password, ana_, Cheap).why; });
    ExpectRefused("O papel não existe mais. Escolha outro.", [&] { return Save({7, "Lia", 4711, true}); });
    ExpectRefused("O papel não existe mais.", [&] { return SaveRights(4711, {}); });
}

TEST_F(Accounts, OfTheLastWhoAdministersStayAsTheyAre)
{
    MakeUsers();
    ExpectRefused(NobodyLeft, [&] { return Save({8, "Ana", Management, true}); });
    ExpectRefused(NobodyLeft, [&] { return Save({8, "Ana", 0, true}); });
    ExpectRefused(NobodyLeft, [&] { return Save({8, "Ana", Administration, false}); });
    ExpectRefused(NobodyLeft, [&] {
        Rights rights = RightsOf(Data(), 8);
        rights.erase(Right::AdministerUsers);
        return SaveRights(Administration, rights, "Administração");
    });
    GiveLia(Administration);
    EXPECT_EQ(Save({8, "Ana", Management, true}), "");
    const Author lia = lia_;
    EXPECT_EQ(SaveAccount(Data(), {7, "Lia", Reception, true}, nullptr, lia, Cheap).why, NobodyLeft);
}

TEST_F(Accounts, OfTheLastWhoAdministersStayAlsoWhereAnotherHasNoPassword)
{
    MakeUsers();
    GiveLia(Administration);
    Run("update usuario set senha = null where codigo = 7");
    ExpectRefused(NobodyLeft, [&] { return Save({8, "Ana", Reception, true}); });
}

TEST_F(Accounts, AreWrittenByWhoeverMayAdministerThemAndByNobodyElse)
{
    MakeUsers();
    const std::string told = "Recepção não pode administrar usuários. Peça a quem administra os usuários.";
    const Secret password("Focinho 2026");
    const std::function<void()> writes[] = {
        [&] {
            SaveAccount(Data(), {7, "Lia", Administration, true}, nullptr, lia_, Cheap);
        },
        [&] { SetPassword(Data(), 8, password, lia_, Cheap); },
        [&] { SetPin(Data(), 8, nullptr, lia_, Cheap); },
        [&] {
            SaveRole(Data(), {Reception, "Recepção", RightsOf(Data(), 8)}, lia_);
        },
    };
    for (const auto& write : writes) {
        try {
            write();
            ADD_FAILURE();
        } catch (const RightDenied& denied) {
            EXPECT_EQ(denied.Cause(), told);
        }
    }
    EXPECT_EQ(LinesOf("direito_negado"),
              std::vector<std::string>(4, R"(7 7 - Lia direito_negado {"direito":"usuarios.administrar"})"));
    EXPECT_TRUE(Enter("Ana", "Gato-Preto 1").IsDone());
    EXPECT_EQ(RightsOf(Data(), 7).count(Right::AdministerUsers), 0U);
}

TEST_F(Accounts, StandInTheAuditWithoutTheirSecrets)
{
    MakeUsers();
    const Secret pin("2580");
    EXPECT_EQ(SetPin(Data(), 7, &pin, ana_, Cheap).why, "");
    EXPECT_EQ(SetPin(Data(), 7, nullptr, ana_, Cheap).why, "");
    GiveLia(Reception);
    EXPECT_EQ(Audit(),
              (std::vector<std::string>{
                  R"(usuario 8 alteracao {"codigo_do_papel":null} {"codigo_do_papel":1})",
                  R"(usuario 8 alteracao {} {"senha":"definida"})",
                  R"(usuario 7 alteracao {"codigo_do_papel":null} {"codigo_do_papel":3})",
                  R"(usuario 7 alteracao {} {"senha":"definida"})",
                  R"(usuario 7 alteracao {} {"pin":"definida"})",
                  R"(usuario 7 alteracao {} {"pin":"retirada"})",
              }));
}

TEST_F(Accounts, WithANewPasswordNeedNotWaitForWrongTries)
{
    MakeUsers();
    for (int time = 0; time < 10; ++time) {
        Pass(300);
        Enter("Lia", "errada 123");
    }
    const Secret password("Focinho 2026");
    EXPECT_EQ(SetPassword(Data(), 7, password, ana_, Cheap).why, "");
    EXPECT_TRUE(Enter("Lia", "Focinho 2026").IsDone());
    EXPECT_EQ(Enter("Lia", "Laço Azul 22").outcome, SignInAnswer::Outcome::Wrong);
}

TEST_F(Accounts, HaveRolesThatTheOwnerMakes)
{
    MakeUsers();
    const AccountAnswer answer = SaveRole(Data(), {0, "Banhista", {Right::Book, Right::SeeHistory}}, ana_);
    EXPECT_TRUE(answer.IsDone()) << answer.why;
    GiveLia(answer.code);
    EXPECT_EQ(RightsOf(Data(), 7), (Rights{Right::Book, Right::SeeHistory}));
    EXPECT_EQ(SaveRights(answer.code, {Right::Book}, "Banhistas"), "");
    EXPECT_EQ(RightsOf(Data(), 7), Rights{Right::Book});
    EXPECT_EQ(WhyDenied(Data(), lia_, Right::SeeHistory),
              "Banhistas não pode ver o histórico. Peça a quem administra os usuários.");
    ExpectRefused("Informe o nome.", [&] { return SaveRights(answer.code, {}, " "); });
    ExpectRefused("Já há um papel com este nome.", [&] { return SaveRights(0, {}, "RECEPCAO"); });
}

} // namespace kova::family::test
