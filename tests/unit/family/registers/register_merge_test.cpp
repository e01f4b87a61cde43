// Two desks at one row of a register.

#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

using namespace registers;

class RegisterMerge : public RegisterTest {
protected:
    RegisterMerge() : otherDesk_(OpenDatabase(shop_.DataSource())) { }

    /// Marcos opens the row as it is, types and saves.
    void OtherChanges(const Register& of, Key key, const Typed& typed)
    {
        const registers::Texts before = of.Read(*otherDesk_, key).value();
        const SaveAnswer answer = of.Save(*otherDesk_, key, before, Over(of, before, typed), marcos_);
        ASSERT_EQ(Told(of, answer), "feito");
    }
    /// Lia has opened the row with `before` on show.
    SaveAnswer ChangeFrom(const Register& of, Key key, const registers::Texts& before, const Typed& typed)
    {
        return of.Save(Data(), key, before, Over(of, before, typed), lia_);
    }
    registers::Texts Shown(const Register& of, Key key) { return of.Read(Data(), key).value(); }

    std::shared_ptr<Database> otherDesk_;
};

TEST_F(RegisterMerge, KeepsWhatTheOtherDeskHasChanged)
{
    const Register& customers = CustomerRegister();
    const registers::Texts before = Shown(customers, 10);
    OtherChanges(customers, 10,
                 {{"Bairro", "Centro"}, {"Canais", "Celular: (11) 95555-0000"}, {"VIP", "Sim"}});
    EXPECT_EQ(Told(customers, ChangeFrom(customers, 10, before, {{"Cidade", "Outra"}, {"VIP", "sim"}})),
              "feito");
    EXPECT_EQ(Field(customers, 10, "Bairro"), "Centro");
    EXPECT_EQ(Field(customers, 10, "Canais"), "Celular: (11) 95555-0000");
    EXPECT_EQ(Field(customers, 10, "Cidade"), "Outra");
    EXPECT_EQ(Field(customers, 10, "VIP"), "Sim") << "both wanted the same";
    EXPECT_EQ(Texts("select endereco_completo from cliente where codigo = 10"),
              std::vector<std::string>{"Rua do Ipê, 110 - Centro - Outra/SP"});
}

TEST_F(RegisterMerge, RefusesAFieldThatBothHaveChangedAndSaysWhoAndWhen)
{
    const Register& services = ServiceRegister();
    const registers::Texts before = Shown(services, 2);
    OtherChanges(services, 2, {{"Preço", "70"}});
    OtherChanges(services, 2, {{"Nome", "Banho simples"}});
    const std::vector<std::string> rows = AllRows();
    const SaveAnswer answer =
        ChangeFrom(services, 2, before, {{"Preço", "65"}, {"Descrição", "Com secagem"}});
    EXPECT_EQ(
        Told(services, answer),
        "Preço: Marcos (posto BALCAO-2) gravou \"70,00\" em 20/11/2026 às 09:30; você informou \"65,00\".");
    EXPECT_EQ(
        answer.clash,
        "Este cadastro foi alterado depois que você o abriu. Nada do que você mudou foi gravado.\r\n\r\n"
        "Preço: Marcos (posto BALCAO-2) gravou \"70,00\" em 20/11/2026 às 09:30; você informou \"65,00\".\r\n"
        "\r\nVocê também informou:\r\nDescrição: \"Com secagem\"\r\n\r\n"
        "Abra o cadastro de novo para vê-lo como está agora. Depois refaça as suas mudanças.");
    EXPECT_EQ(AllRows(), rows);
}

TEST_F(RegisterMerge, SaysWhatStandsThereWhereTheAuditDoesNotTellWhoWroteIt)
{
    const Register& services = ServiceRegister();
    const registers::Texts before = Shown(services, 2);
    Run("update servico set preco_em_centavos = 7000 where codigo = 2");
    EXPECT_EQ(Told(services, ChangeFrom(services, 2, before, {{"Preço", "65"}})),
              "Preço: agora está \"70,00\"; você informou \"65,00\".");
    EXPECT_EQ(Told(services, ChangeFrom(services, 2, before, {{"Preço", "70,00"}})), "feito");
}

TEST_F(RegisterMerge, TakesSpeciesAndBreedAsOne)
{
    ASSERT_TRUE(Add(SpeciesRegister(), {{"Nome", "Felina"}}).IsDone());
    ASSERT_TRUE(Add(BreedRegister(), {{"Espécie", "Felina"}, {"Nome", "Persa"}}).IsDone());
    ASSERT_TRUE(Add(BreedRegister(), {{"Espécie", "Canina"}, {"Nome", "Maltês"}}).IsDone());
    const Register& animals = AnimalRegister();
    const registers::Texts before = Shown(animals, 50);
    OtherChanges(animals, 50, {{"Espécie", "Felina"}, {"Raça", "Persa"}});
    EXPECT_EQ(
        Told(animals, ChangeFrom(animals, 50, before, {{"Raça", "Maltês"}})),
        "Espécie: Marcos (posto BALCAO-2) gravou \"Felina\" em 20/11/2026 às 09:30; você informou \"Canina\"."
        " Raça: Marcos (posto BALCAO-2) gravou \"Persa\" em 20/11/2026 às 09:30; você informou \"Maltês\".");
    EXPECT_EQ(Told(animals, ChangeFrom(animals, 50, before, {{"Cor", "Branco"}})), "feito");
    EXPECT_EQ(Field(animals, 50, "Raça"), "Persa");
}

TEST_F(RegisterMerge, TakesWhatStandsBesideSpeciesAndBreedAlone)
{
    const Register& animals = AnimalRegister();
    const registers::Texts before = Shown(animals, 50);
    OtherChanges(animals, 50, {{"Sexo", "Macho"}, {"Porte", "Grande"}});
    EXPECT_EQ(Told(animals, ChangeFrom(animals, 50, before, {{"Raça", ""}})), "feito");
    EXPECT_EQ(Field(animals, 50, "Porte"), "Grande");
    EXPECT_EQ(Field(animals, 50, "Raça"), "Sem raça definida");
}

TEST_F(RegisterMerge, LooksAtTheRulesOfWhatComesOfBoth)
{
    const Register& employees = EmployeeRegister();
    const registers::Texts before = Shown(employees, 1);
    OtherChanges(employees, 1, {{"Nome", "Beatriz"}});
    EXPECT_EQ(Told(employees, ChangeFrom(employees, 1, before, {{"Apelido", "Bia"}})),
              "Apelido: já há um(a) funcionário(a) com este apelido e este nome.");
}

TEST_F(RegisterMerge, TellsThatTheOtherDeskHasRemovedTheRow)
{
    const Register& holidays = HolidayRegister();
    const Key key = Add(holidays, {{"Nome", "Natal"}, {"Data", "25/12"}}).key;
    const registers::Texts before = Shown(holidays, key);
    ASSERT_TRUE(holidays.Remove(*otherDesk_, key, marcos_).IsDone());
    EXPECT_EQ(Told(holidays, ChangeFrom(holidays, key, before, {{"Nome", "Véspera"}})), "não existe");
}

} // namespace kova::family::test
