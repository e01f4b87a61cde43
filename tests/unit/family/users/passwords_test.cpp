#include "tests/unit/family/users/cheap.hpp"

#include "agenda/contracts/failure.hpp"
#include "tests/support/little_memory.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kova::family::test {

namespace {

Secret Typed(std::string text) { return Secret(text); }

} // namespace

TEST(Passwords, AreKnownAgainByWhatIsKeptAndByNothingElse)
{
    const std::string kept = HashOf(Typed("Laço Azul 22"), Cheap);
    EXPECT_TRUE(kept.starts_with("$argon2id$v=19$m=8,t=1,p=1$")) << kept;
    EXPECT_EQ(kept.find("Azul"), std::string::npos);
    EXPECT_TRUE(IsHashOf(kept, Typed("Laço Azul 22")));
    for (const char* other : {"laço azul 22", "Laço Azul 2", "Laço Azul 222", "", "Laco Azul 22"})
        EXPECT_FALSE(IsHashOf(kept, Typed(other))) << other;
}

TEST(Passwords, AreKeptInAnotherWayEachTime)
{
    EXPECT_NE(HashOf(Typed("Laço Azul 22"), Cheap), HashOf(Typed("Laço Azul 22"), Cheap));
}

TEST(Passwords, OfAnyBytesAreKnownAgain)
{
    const std::string withNul("Laço\0Azul 22", 12), longOne(1000, 'x'), noText = "Jos\xE9\xFF\xC3 123";
    for (const std::string& text : {withNul, longOne, noText}) {
        const std::string kept = HashOf(Typed(text), Cheap);
        EXPECT_TRUE(IsHashOf(kept, Typed(text)));
        EXPECT_FALSE(IsHashOf(kept, Typed(text.substr(0, text.size() - 1))));
        EXPECT_FALSE(IsHashOf(kept, Typed(text + "x")));
    }
    EXPECT_FALSE(IsHashOf(HashOf(Typed(withNul), Cheap), Typed("Laço")));
}

TEST(Passwords, AreNoneOfATextThatIsKeptOtherwise)
{
    const std::string kept = HashOf(Typed("Laço Azul 22"), Cheap);
    for (const std::string& other : {std::string(), std::string("Laço Azul 22"), std::string("$argon2id$"),
                                     kept.substr(0, kept.size() - 1), kept + std::string("\0x", 2)})
        EXPECT_FALSE(IsHashOf(other, Typed("Laço Azul 22"))) << other;
}

TEST(Passwords, AreNoneOfATextWithPartsThatAreOutOfBounds)
{
    const std::string kept = HashOf(Typed("Laço Azul 22"), Cheap);
    const auto with = [&](const std::string& part, const std::string& other) {
        std::string text = kept;
        return text.replace(text.find(part), part.size(), other);
    };
    for (const std::string& other :
         {with("m=8", "m=7"), with("m=8", "m=-8"), with("m=8", "m=99999999999999999999"), with("m=8", "m="),
          with("t=1", "t=0"), with("t=1", "t=4294967296"), with("t=1", "t=1x"), with("p=1", "p=2"),
          with("v=19", "v=16"), with("argon2id", "argon2i"), with("p=1$", "p=1$A"), kept + "A", kept + "=",
          with("p=1$", "p=1$$")})
        EXPECT_FALSE(IsHashOf(other, Typed("Laço Azul 22"))) << other;
}

TEST(Passwords, AreNeitherKeptNorCalledWrongWhereThereIsNoMemoryForIt)
{
    const Secret secret = Typed("Laço Azul 22");
    const std::string kept = HashOf(secret, FrontDeskCost);
    for (const bool isRight : {true, false}) {
        const Secret tried = Typed(isRight ? "Laço Azul 22" : "errada 123");
        for (const bool keeps : {true, false}) {
            const kova::test::LittleMemory memory;
            try {
                keeps ? void(HashOf(tried, FrontDeskCost)) : void(IsHashOf(kept, tried));
                ADD_FAILURE() << isRight << keeps;
            } catch (const Failure& failure) {
                EXPECT_EQ(failure.Number(), 7);
                EXPECT_EQ(failure.Description(), kova::test::LittleMemory::Told);
            }
        }
        EXPECT_EQ(IsHashOf(kept, tried), isRight) << "afterwards";
    }
}

TEST(Passwords, AreKeptAnewAtAnotherCost)
{
    const std::string kept = HashOf(Typed("Laço Azul 22"), Cheap);
    EXPECT_FALSE(IsOutdated(kept, Cheap));
    EXPECT_TRUE(IsOutdated(kept, {2, 8192}));
    EXPECT_TRUE(IsOutdated(kept, FrontDeskCost));
    EXPECT_GE(FrontDeskCost.bytes, std::size_t{64} << 20U);
}

TEST(Passwords, AreWipedWhereTheyWereTyped)
{
    std::string typed = "Laço Azul 22";
    const char* const letters = typed.data();
    const Secret secret(typed);
    EXPECT_EQ(secret.Text(), "Laço Azul 22");
    EXPECT_TRUE(typed.empty());
    EXPECT_EQ(std::string(letters, 8), std::string(8, '\0'));
}

TEST(Passwords, HaveALengthAndCharactersThatCanBeTyped)
{
    const std::map<std::string, std::string> cases = {
        {"Laço Azul 22", ""},
        {"açúcar é", ""},
        {std::string(999, 'x') + "y", ""},
        {"", "A senha precisa ter pelo menos 8 caracteres."},
        {"çççççç7", "A senha precisa ter pelo menos 8 caracteres."},
        {std::string(1000, 'x') + "y", "A senha pode ter até 1000 caracteres."},
        {"aaaaaaaaaa", "A senha não pode ser um só caractere repetido."},
        {std::string("Laço\0Azul", 10), "A senha só pode ter caracteres que se digitam."},
        {"Laço\nAzul 22", "A senha só pode ter caracteres que se digitam."},
        {"Jos\xE9 Antonio", "A senha só pode ter caracteres que se digitam."},
    };
    for (const auto& [text, told] : cases)
        EXPECT_EQ(ObjectionToPassword(Typed(text)), told) << text;
}

TEST(Passwords, ThatArePinsAreAFewDigits)
{
    const std::string wrong = "O PIN precisa ter de 4 a 8 algarismos.",
                      easy = "O PIN é fácil demais de adivinhar. Escolha outro.";
    const std::map<std::string, std::string> cases = {
        {"2026", ""},
        {"90817263", ""},
        {"1235", ""},
        {"", wrong},
        {"123", wrong},
        {"12a4", wrong},
        {"290817263", wrong},
        {"20 6", wrong},
        {"1111", easy},
        {"1234", easy},
        {"87654", easy},
        {"٢٠٢٦", wrong},
        {std::string("20\0006", 4), wrong},
    };
    for (const auto& [text, told] : cases)
        EXPECT_EQ(ObjectionToPin(Typed(text)), told) << text;
}

TEST(Digests, TellOneNameFromAnotherAndSayNothingOfIt)
{
    std::set<std::string> digests;
    for (const std::string& name : {std::string(), std::string("lia"), std::string("lia\0", 4),
                                    std::string(1000, 'x'), std::string("d'avila; drop table usuario")})
        digests.insert(DigestOf(name));
    EXPECT_EQ(digests.size(), 5U);
    EXPECT_EQ(DigestOf("lia"), DigestOf("lia"));
    for (const std::string& digest : digests)
        EXPECT_EQ(digest.find_first_not_of("0123456789abcdef"), std::string::npos) << digest;
}

} // namespace kova::family::test
