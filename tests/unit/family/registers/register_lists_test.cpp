// The lists of the registers, as they are searched while somebody types.

#include "tests/unit/family/registers/register_fixture.hpp"

#include <algorithm>

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

TEST_F(RegisterLists, LeaveOutWhatIsInactiveWhereOnlyTheActiveIsWanted)
{
    const auto active = [&](const Register& of, const char* text) {
        return of.Find(Data(), text, Listed::Active);
    };
    EXPECT_EQ(active(CustomerRegister(), ""), (Keys{ana_, 11, 10, canil_}));
    ExpectDone(CustomerRegister(), ana_, {{"Situação", "Inativo"}});
    ExpectDone(CustomerRegister(), 11, {{"Situação", "Bloqueado"}});
    ExpectDone(CustomerRegister(), canil_, {{"Situação", "Excluído"}});
    EXPECT_EQ(active(CustomerRegister(), ""), (Keys{11, 10}));
    EXPECT_EQ(active(CustomerRegister(), "luz"), Keys());
    EXPECT_EQ(Find("luz"), Keys{ana_});
    EXPECT_EQ(Find("98888"), Keys{ana_}) << "its numbers, too";
    ExpectDone(AnimalRegister(), 50, {{"Situação", "Inativo"}});
    EXPECT_EQ(active(AnimalRegister(), ""), Keys{51});
    EXPECT_EQ(AnimalRegister().Find(Data(), "").size(), 2U);
    ExpectDone(ServiceRegister(), 2, {{"Situação", "Inativo"}});
    EXPECT_EQ(active(ServiceRegister(), "banho"), Keys());
    EXPECT_EQ(ServiceRegister().Find(Data(), "banho"), Keys{2});
    ExpectDone(CustomerRegister(), ana_, {{"Situação", "Ativo"}});
    EXPECT_EQ(active(CustomerRegister(), "luz"), Keys{ana_});
    for (const Register* one : Registers()) {
        const bool hasStatus = std::ranges::any_of(
            one->Fields(), [](const FieldInfo& field) { return field.label == "Situação"; });
        EXPECT_EQ(one->HasInactive(), hasStatus) << one->Name().name;
    }
}

TEST_F(RegisterLists, FollowEveryChange)
{
    EXPECT_EQ(Find("7777"), Keys());
    ExpectDone(CustomerRegister(), 11, {{"Canais", "Celular: (11) 97777-0000"}});
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

TEST_F(RegisterLists, ShowHoursInTheOrderOfTheWeek)
{
    const Register& open = OpeningHoursRegister();
    const Key evening =
        Add(open, {{"Dia da semana", "Domingo"}, {"Hora inicial", "18:00"}, {"Hora final", "24:00"}}).key;
    const Key morning =
        Add(open, {{"Dia da semana", "Domingo"}, {"Hora inicial", "8:00"}, {"Hora final", "12:00"}}).key;
    const ListPage page = open.Search(Data(), "", 0, 3);
    EXPECT_EQ(page.found, 8U);
    ASSERT_EQ(page.rows.size(), 3U);
    EXPECT_EQ(page.rows[0].cells, (registers::Texts{"Domingo", "08:00", "12:00", std::to_string(morning)}));
    EXPECT_EQ(page.rows[1].key, evening);
    EXPECT_EQ(page.rows[2].cells[0], "Segunda-feira");
    EXPECT_EQ(open.Find(Data(), "domin"), (Keys{morning, evening}));
    EXPECT_EQ(open.Find(Data(), "18:00"), (Keys{evening}));
    EXPECT_EQ(open.Find(Data(), "sabado").size(), 1U);

    const Register& hours = EmployeeHoursRegister();
    const auto add = [&](const char* employee, const char* day, const char* from, const char* until) {
        return Add(hours,
                   {{"Código do funcionário", employee},
                    {"Dia da semana", day},
                    {"Hora inicial", from},
                    {"Hora final", until}})
            .key;
    };
    const Key zeca = add("1", "Domingo", "08:00", "12:00");
    const Key saturday = add("2", "Sábado", "08:00", "12:00");
    const Key afternoon = add("2", "Segunda-feira", "13:00", "18:00");
    const Key early = add("2", "Segunda-feira", "08:00", "12:00");
    EXPECT_EQ(hours.Find(Data(), ""), (Keys{early, afternoon, saturday, zeca}));
    EXPECT_EQ(hours.Find(Data(), "bia"), (Keys{early, afternoon, saturday}));
    EXPECT_EQ(hours.Search(Data(), "", 0, 1).rows.at(0).cells,
              (registers::Texts{"Bia", "Segunda-feira", "08:00", "12:00", std::to_string(early)}));
}

TEST_F(RegisterLists, ShowTheNewestAbsenceFirst)
{
    const Register& absences = AbsenceRegister();
    const auto add = [&](const char* employee, const char* from, const char* time, const char* reason) {
        return Add(absences,
                   {{"Código do funcionário", employee},
                    {"Data inicial", from},
                    {"Hora inicial", time},
                    {"Data final", "31/01/2027"},
                    {"Hora final", "24:00"},
                    {"Motivo", reason}})
            .key;
    };
    const Key first = add("2", "30/11/2026", "08:00", "Dentista");
    const Key newest = add("", "02/01/2027", "00:00", "Recesso");
    const Key late = add("1", "01/12/2026", "14:00", "Férias");
    const Key early = add("2", "01/12/2026", "09:00", "Férias");
    EXPECT_EQ(absences.Find(Data(), ""), (Keys{newest, late, early, first}));
    EXPECT_EQ(absences.Find(Data(), "ferias"), (Keys{late, early}));
    EXPECT_EQ(absences.Find(Data(), "todos"), (Keys{newest}));
    EXPECT_EQ(absences.Find(Data(), "01/12/2026"), (Keys{late, early}));
    const ListPage page = absences.Search(Data(), "", 0, 2);
    ASSERT_EQ(page.rows.size(), 2U);
    EXPECT_EQ(page.rows[0].cells,
              (registers::Texts{"Todos", "02/01/2027", "00:00", "31/01/2027", "24:00", "Recesso"}));
    EXPECT_EQ(page.rows[1].cells[0], "Zeca");
}

TEST_F(RegisterLists, LeaveOutARowThatIsGoneSinceItWasFound)
{
    const Keys found = EmployeeRegister().Find(Data(), "");
    Run("delete from funcionario where codigo = 3");
    EXPECT_EQ(EmployeeRegister().Rows(Data(), found).size(), 2U);
    EXPECT_TRUE(EmployeeRegister().Rows(Data(), {}).empty());
}

} // namespace kova::family::test
