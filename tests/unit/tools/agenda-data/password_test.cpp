#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/users/accounts.hpp"
#include "family/users/sign_in.hpp"
#include "tests/support/little_memory.hpp"
#include "tools/agenda-data/commands.hpp"

#include <sstream>

namespace kova::data::test {

namespace {

class StillClock : public Clock {
public:
    DateTime Now() const override { return {{2026, 11, 20}, {9, 0, 0}}; }
    Double Timer() const override { return 0; }
};

/// Passwords that are typed at a console, or come from elsewhere.
class Passwords : public ImportTest {
protected:
    int RunReading(const std::vector<std::string>& words, const std::string& input, bool isTyped = false)
    {
        std::istringstream stream(input);
        output_.str({});
        error_.str({});
        return data::Run(words, {{2026, 11, 20}, {9, 0, 0}}, output_, error_, {stream, isTyped});
    }

    /// A shop that Ana administers.
    std::string ShopOfAna()
    {
        const std::string place = Place("senhas");
        EXPECT_EQ(RunReading({"create", place, "--company", "Céu", "--user", "Ana", "--password"},
                             "Gato-Preto 1\n"),
                  0)
            << error_.str();
        return place;
    }

    static bool Enters(const std::string& place, const std::string& name, const std::string& typed)
    {
        const auto database = family::OpenDatabase(place);
        const family::Secret password{std::string(typed)};
        return family::SignIn(*database, {name, password}, StillClock()).IsDone();
    }

    std::ostringstream output_, error_;
};

} // namespace

TEST_F(Passwords, OfANewShopMakeItsUserAdministerIt)
{
    const std::string place = ShopOfAna();
    EXPECT_TRUE(Enters(place, "ana", "Gato-Preto 1"));
    EXPECT_EQ(Run({"check", place}), 0) << Error();
}

TEST_F(Passwords, AreTypedTwiceAtAConsole)
{
    const std::string place = Place("senhas");
    const std::vector<std::string> words = {"create", place, "--company", "Céu",
                                            "--user", "Ana", "--password"};
    EXPECT_EQ(RunReading(words, "Gato-Preto 1\nGato-Preto 2\n", true), 1);
    EXPECT_EQ(error_.str(), "Senha nova: \nA mesma, outra vez: \nAs duas senhas não são iguais.\n");
    EXPECT_EQ(RunReading(words, "azul\n", true), 1);
    EXPECT_EQ(error_.str(), "Senha nova: \nA senha precisa ter pelo menos 8 caracteres.\n");
    EXPECT_FALSE(family::DataSourceExists(place));
    EXPECT_EQ(RunReading(words, "Gato-Preto 1\r\nGato-Preto 1\n", true), 0) << error_.str();
    EXPECT_TRUE(Enters(place, "Ana", "Gato-Preto 1"));
}

TEST_F(Passwords, ThatWereLostAreResetByWhoeverHasTheData)
{
    const std::string place = ShopOfAna();
    EXPECT_EQ(RunReading({"reset-password", place, "--user", " ÁNA"}, "Laço Azul 22\n"), 0) << error_.str();
    EXPECT_EQ(output_.str(), "Senha definida: Ana\n");
    EXPECT_FALSE(Enters(place, "Ana", "Gato-Preto 1"));
    EXPECT_TRUE(Enters(place, "Ana", "Laço Azul 22"));
    const auto database = family::OpenDatabase(place);
    std::string line;
    database->Session() << "select momento || ' ' || depois from auditoria where tabela = 'usuario'",
        soci::into(line);
    EXPECT_EQ(line, "2026-11-20 09:00:00 {\"senha\":\"definida\"}");
}

TEST_F(Passwords, ThatWillNotDoOrAreOfNobodyChangeNothing)
{
    const std::string place = ShopOfAna();
    for (const std::string& input : {std::string(), std::string("\n"), std::string("azul\n"),
                                     std::string("Jos\xE9\xFF senha\n"), std::string(1001, 'x')})
        EXPECT_EQ(RunReading({"reset-password", place, "--user", "Ana"}, input), 1) << input;
    EXPECT_EQ(RunReading({"reset-password", place, "--user", "D'Ávila \"Lia\""}, "Laço Azul 22\n"), 1);
    EXPECT_EQ(error_.str(), "Não há usuário com papel que se chame \"D'Ávila \"Lia\"\" nesta loja.\n");
    EXPECT_EQ(RunReading({"reset-password", place}, "Laço Azul 22\n"), 2);
    EXPECT_NE(error_.str().find("Informe com --user de quem é a senha."), std::string::npos) << error_.str();
    EXPECT_EQ(RunReading({"reset-password", place, "--user", "Ana", "Laço Azul 22"}, ""), 2)
        << "no word of the command line";
    EXPECT_TRUE(Enters(place, "Ana", "Gato-Preto 1"));
}

TEST_F(Passwords, OfWhoeverIsInactiveAreResetAndLetNobodyIn)
{
    const std::string place = ShopOfAna();
    const family::Secret former(std::string("Gato-Preto 1"));
    const family::Author owner{.code = "0", .name = "root", .moment = "2026-11-20 09:00:00", .isOwner = true};
    EXPECT_EQ(
        family::SaveAccount(*family::OpenDatabase(place), {0, "Lia", 3, false}, &former, owner, {1, 8192})
            .why,
        "");
    EXPECT_EQ(RunReading({"reset-password", place, "--user", "Lia"}, "Laço Azul 22\n"), 0) << error_.str();
    EXPECT_EQ(output_.str(), "Senha definida: Lia\nO usuário está inativo e não entra enquanto estiver.\n");
    EXPECT_FALSE(Enters(place, "Lia", "Laço Azul 22"));
}

TEST_F(Passwords, StayAsTheyWereWhereThereIsNoMemoryToKeepAnother)
{
    const std::string place = ShopOfAna();
    {
        const kova::test::LittleMemory memory;
        EXPECT_EQ(RunReading({"reset-password", place, "--user", "Ana"}, "Laço Azul 22\n"), 1);
        EXPECT_EQ(error_.str(), "agenda-data: " + std::string(kova::test::LittleMemory::Told) + "\n");
    }
    EXPECT_TRUE(Enters(place, "Ana", "Gato-Preto 1"));
}

} // namespace kova::data::test
