// The lists of the registers, as they are searched while somebody types.

#include "tests/unit/family/registers/register_fixture.hpp"

namespace kova::family::test {

using namespace registers;

class RegisterLists : public RegisterTest {
protected:
    RegisterLists()
    {
        ana_ = Add(CustomerRegister(),
                   {{"Nome", "Ana Luz"},
                    {"Apelido", "Aninha"},
                    {"Documento", "529.982.247-25"},
                    {"Canais",
                     "Celular: (11) 98888-1234; Telefone: 11 3333-4444; E-mail: "
                     "Ana.Luz@Exemplo.com"}})
                   .key;
        canil_ = Add(CustomerRegister(), {{"Nome", "Ziraldo"}, {"Documento", "12.ABC.345/01DE-35"}}).key;
    }

    std::vector<Key> Find(const std::string& text) { return CustomerRegister().Find(Data(), text); }

    using Keys = std::vector<Key>;
    Key ana_ = 0, canil_ = 0;
};

TEST_F(RegisterLists, ShowCustomersByName)
{
    EXPECT_EQ(Find(""), (Keys{ana_, 11, 10, canil_}));
    EXPECT_EQ(Find("  "), (Keys{ana_, 11, 10, canil_}));
    const ListPage page = CustomerRegister().Search(Data(), "", 1, 2);
    EXPECT_EQ(page.found, 4U);
    ASSERT_EQ(page.rows.size(), 2U);
    EXPECT_EQ(page.rows[1].key, 10);
    EXPECT_EQ(page.rows[1].cells,
              (registers::Texts{"José Antônio Peçanha", "Zé", "123.456.789-09",
                                "Celular: (00) 91234-5678; E-mail: ze@example.com", "Ativo", "10"}));
    EXPECT_EQ(CustomerRegister().ListColumns().size(), 6U);
    EXPECT_TRUE(CustomerRegister().ListColumns().back().number);
    EXPECT_TRUE(CustomerRegister().Search(Data(), "", 9, 2).rows.empty());
}

TEST_F(RegisterLists, ShowThoseOfOneNameByCode)
{
    const Key second = Add(CustomerRegister(), {{"Nome", "ANA LUZ"}, {"Apelido", "Aa"}}).key;
    const Key longer = Add(CustomerRegister(), {{"Nome", "Ana Luz Brito"}}).key;
    EXPECT_EQ(Find("ana luz"), (Keys{ana_, second, longer}));
    const Key cat = Add(AnimalRegister(),
                        {{"Código do cliente", "10"},
                         {"Nome", "Leão"},
                         {"Sexo", "M"},
                         {"Espécie", "Canina"},
                         {"Porte", "Médio"}})
                        .key;
    EXPECT_EQ(AnimalRegister().Find(Data(), "leao"), (Keys{51, cat}));
}

TEST_F(RegisterLists, FindACustomerByAnyPartOfWhatIsKnown)
{
    struct Case {
        const char* text;
        Keys found;
    };
    const Case cases[] = {
        {"luz", {ana_}},          {"ANINHA", {ana_}},
        {"antonio pec", {10}},    {"98888", {ana_}},
        {"8888-12", {ana_}},      {"(11) 9", {ana_}},
        {"1198888", {ana_}},      {"33334444", {ana_}},
        {"3333 44", {ana_}},      {"ana.luz@ex", {ana_}},
        {"@example", {10}},       {"529.982", {ana_}},
        {"52998224725", {ana_}},  {"12.abc.345/01", {canil_}},
        {"ABC34501de", {canil_}}, {"paçoca", {10}},
        {"PACO", {10}},           {"leao", {11}},
        {"ninguem", {}},
    };
    for (const Case& one : cases)
        EXPECT_EQ(Find(one.text), one.found) << one.text;
    EXPECT_EQ(Find("10"), (Keys{10})) << "the code";
    EXPECT_EQ(Find("12343333"), Keys()) << "no number runs from one channel into the next";
}

TEST_F(RegisterLists, FollowEveryChange)
{
    EXPECT_EQ(Find("7777"), Keys());
    ExpectDone(CustomerRegister(), 11, {{"Canais", "Celular: 7777"}});
    EXPECT_EQ(Find("7777"), (Keys{11}));
    ExpectDone(CustomerRegister(), 11, {{"Documento", ""}});
    EXPECT_EQ(Find("11222333"), Keys());
    ExpectDone(AnimalRegister(), 51, {{"Nome", "Trovão"}});
    EXPECT_EQ(Find("leao"), Keys());
    EXPECT_EQ(Find("trovao"), (Keys{11}));
    EXPECT_EQ(AnimalRegister().Find(Data(), "trovao"), (Keys{51}));
    ExpectDone(CustomerRegister(), 11, {{"Apelido", "Canil Sol"}});
    EXPECT_EQ(AnimalRegister().Find(Data(), "canil sol"), (Keys{51}));
}

TEST_F(RegisterLists, FindAnimalsByNameMicrochipAndCustomer)
{
    EXPECT_EQ(AnimalRegister().Find(Data(), ""), (Keys{51, 50}));
    EXPECT_EQ(AnimalRegister().Find(Data(), "paco"), (Keys{50}));
    EXPECT_EQ(AnimalRegister().Find(Data(), "999.0000"), (Keys{50}));
    EXPECT_EQ(AnimalRegister().Find(Data(), "peçanha"), (Keys{50}));
    EXPECT_EQ(AnimalRegister().Find(Data(), "51"), (Keys{51}));
    ExpectDone(AnimalRegister(), 50, {{"Situação", "Inativo"}});
    const ListPage page = AnimalRegister().Search(Data(), "paco", 0, 10);
    ASSERT_EQ(page.rows.size(), 1U);
    EXPECT_FALSE(page.rows[0].active);
    EXPECT_EQ(page.rows[0].cells, (registers::Texts{"Paçoca", "Zé", "Canina", "Poodle", "Inativo", "50"}));
}

TEST_F(RegisterLists, FindTheOthersByWhatTheyShow)
{
    EXPECT_EQ(ServiceRegister().Find(Data(), ""), (Keys{2, 1})) << "by name";
    EXPECT_EQ(ServiceRegister().Find(Data(), "tosa"), (Keys{2})) << "its type's name";
    EXPECT_EQ(EmployeeRegister().Find(Data(), ""), (Keys{3, 2, 1})) << "by nickname";
    EXPECT_EQ(EmployeeRegister().Find(Data(), "beat"), (Keys{2}));
    EXPECT_EQ(EmployeeRegister().Find(Data(), "inativo"), (Keys{3}));
    EXPECT_EQ(EmployeeRegister().Find(Data(), "2"), (Keys{2}));
    EXPECT_EQ(BreedRegister().Find(Data(), "canina"), (Keys{1}));
    EXPECT_EQ(CompanyRegister().Find(Data(), ""), (Keys{1}));
    const ListPage page = ServiceRegister().Search(Data(), "banho", 0, 9);
    ASSERT_EQ(page.rows.size(), 1U);
    EXPECT_EQ(page.rows[0].cells, (registers::Texts{"Banho", "Banho e tosa", "75", "60,00", "Ativo", "2"}));
}

TEST_F(RegisterLists, LeaveOutARowThatIsGoneSinceItWasFound)
{
    const Keys found = EmployeeRegister().Find(Data(), "");
    Run("delete from funcionario where codigo = 3");
    EXPECT_EQ(EmployeeRegister().Rows(Data(), found).size(), 2U);
    EXPECT_TRUE(EmployeeRegister().Rows(Data(), {}).empty());
}

} // namespace kova::family::test
