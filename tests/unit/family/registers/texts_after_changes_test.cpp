// The lists of the registers stay in memory; of what was changed only the changed rows are read.

#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

using namespace registers;

class TextsAfterChanges : public RegisterTest {
protected:
    using Keys = std::vector<Key>;

    Keys Customers(const std::string& text) { return CustomerRegister().Find(Data(), text); }
    Keys Animals(const std::string& text) { return AnimalRegister().Find(Data(), text); }

    /// A desk that has never looked finds the same.
    void ExpectAllAsFound(const std::string& step)
    {
        const auto fresh = OpenDatabase(host_.DataSource());
        for (const char* text : {"", "a", "jose", "ze", "canil", "paco", "leao", "bidu", "97777", "1"}) {
            EXPECT_EQ(Customers(text), CustomerRegister().Find(*fresh, text)) << step << ": " << text;
            EXPECT_EQ(Animals(text), AnimalRegister().Find(*fresh, text)) << step << ": " << text;
        }
    }

    /// A change of which nobody hears: no counter, no audit.
    void ChangeUnheard() { Run("update cliente set apelido = 'Silencioso' where codigo = 11"); }
    bool HasReadAll() { return !Customers("silencioso").empty(); }
};

TEST_F(TextsAfterChanges, ReadOnlyTheRowThatWasSaved)
{
    Customers("");
    ChangeUnheard();
    ExpectDone(CustomerRegister(), 10, {{"Nome", "Zulmira Prado"}});
    EXPECT_EQ(Customers("zulmira"), Keys{10});
    EXPECT_EQ(Customers("jose"), Keys());
    EXPECT_EQ(Customers("").back(), 10) << "the order follows";
    EXPECT_FALSE(HasReadAll());
    const Key added = Add(CustomerRegister(), {{"Nome", "Abelardo"}}).key;
    EXPECT_EQ(Customers("").front(), added);
    EXPECT_FALSE(HasReadAll());
    CustomerRegister().Remove(Data(), added, lia_);
    EXPECT_EQ(Customers("abelardo"), Keys());
    EXPECT_EQ(Customers("").size(), 2U);
    EXPECT_FALSE(HasReadAll());
}

TEST_F(TextsAfterChanges, ReadTheRowThatAnotherDeskHasSaved)
{
    Customers("");
    ChangeUnheard();
    const auto other = OpenDatabase(host_.DataSource());
    const registers::Texts before = CustomerRegister().Read(*other, 10).value();
    ASSERT_TRUE(
        CustomerRegister()
            .Save(*other, 10, before, Over(CustomerRegister(), before, {{"Apelido", "Zezé"}}), marcos_)
            .IsDone());
    EXPECT_EQ(Customers("zeze"), Keys{10});
    EXPECT_FALSE(HasReadAll());
}

TEST_F(TextsAfterChanges, ReadAllWhereSomethingWasWrittenPastTheAudit)
{
    Customers("");
    ChangeUnheard();
    Run("update cliente set nome_de_busca = 'jose da silva' where codigo = 10");
    EXPECT_EQ(Customers("da silva"), Keys{10});
    EXPECT_TRUE(HasReadAll());
}

TEST_F(TextsAfterChanges, ReadTheRowsOfAHundredWrites)
{
    Customers("");
    ChangeUnheard();
    for (int number = 0; number < 100; ++number)
        ExpectDone(CustomerRegister(), 10, {{"Nome", number % 2 == 0 ? "Zulmira" : "Zilda"}});
    EXPECT_EQ(Customers("zilda"), Keys{10});
    EXPECT_FALSE(HasReadAll());
}

TEST_F(TextsAfterChanges, ReadAllWhereMuchWasWritten)
{
    Customers("");
    ChangeUnheard();
    for (int number = 0; number < 101; ++number)
        ExpectDone(CustomerRegister(), 10, {{"Nome", number % 2 == 0 ? "Zulmira" : "Zilda"}});
    EXPECT_EQ(Customers("zulmira"), Keys{10});
    EXPECT_TRUE(HasReadAll());
}

TEST_F(TextsAfterChanges, AreAllReadBeforeTheFirstKey)
{
    Customers("");
    // No counter hears of it.
    Run("update animal set codigo_do_cliente = 10 where codigo = 51");
    EXPECT_EQ(Customers("leao"), Keys{11});
}

TEST_F(TextsAfterChanges, AreThoseOfADeskThatHasNeverLooked)
{
    ExpectAllAsFound("at first");
    ExpectDone(CustomerRegister(), 11, {{"Apelido", "Canil Sol"}, {"Canais", "Celular: (11) 97777-0000"}});
    ExpectAllAsFound("a customer with an animal");
    ExpectDone(AnimalRegister(), 51, {{"Nome", "Bidu"}});
    ExpectAllAsFound("an animal");
    const Key animal = Add(AnimalRegister(),
                           {{"Código do cliente", "10"},
                            {"Nome", "Leão"},
                            {"Sexo", "M"},
                            {"Espécie", "Canina"},
                            {"Porte", "Médio"}})
                           .key;
    ExpectAllAsFound("a new animal");
    ExpectDone(AnimalRegister(), animal, {{"Código do cliente", "11"}});
    ExpectAllAsFound("an animal's new customer");
    ExpectDone(AnimalRegister(), animal, {{"Nome", "Aba"}});
    ExpectDone(CustomerRegister(), 10, {{"Nome", "Aa"}});
    ExpectAllAsFound("both");
    EXPECT_TRUE(AnimalRegister().Remove(Data(), animal, lia_).IsDone());
    ExpectAllAsFound("a removed animal");
    Run("update animal set nome_de_busca = 'paco' where codigo = 50");
    ExpectDone(AnimalRegister(), 51, {{"Nome", "Leão"}});
    ExpectAllAsFound("one past the audit");
    Break("auditoria", "before insert");
    EXPECT_THROW(Change(CustomerRegister(), 10, {{"Nome", "José"}}), DatabaseFailure);
    Mend("auditoria");
    ExpectAllAsFound("one that was taken back");
    ExpectDone(CustomerRegister(), 10, {{"Nome", "José"}});
    ExpectAllAsFound("the next one");
}

} // namespace kova::family::test
