#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

namespace {

class User : public Object { };

} // namespace

/// The lookups of the record forms and of the two pickers, called as these call them.
class Lookups : public BusinessTest {
protected:
    /// Runs a selection of the class; its rows, which have to be these.
    void Expect(const char* className, const Rows& rows, std::vector<Argument> arguments,
                const char* member = "Selecionar")
    {
        const ComponentRef object = Create(className);
        EXPECT_EQ(Ask(className, member, *object, rows, std::move(arguments)).ToLong(), 0);
        ExpectSame(ContentOf(*ResultOf(*object)), rows);
    }

    void ExpectServices(const std::vector<int>& codes, Integer type, Text name, Double code)
    {
        Expect(ServicesClass, ServiceRows(codes),
               {Long(2), Integer(0), Long(1), "", ByRef(type), ByRef(name), ByRef(code)});
    }

    void ExpectCustomers(const std::vector<int>& codes, const Text& text, Text name = "", Double code = 0,
                         Text address = "")
    {
        Expect(CustomersClass, CustomerRows(codes),
               {Long(2), Integer(0), Long(0), text, ByRef(name), ByRef(code), ByRef(address), "", "",
                Double(0), ""});
    }

    void ExpectAnimals(const std::vector<int>& codes, Argument codeOrName, Double customer)
    {
        Expect(AnimalsClass, AnimalRows(codes),
               {Long(2), Integer(0), Long(1), std::move(codeOrName), Integer(1), customer});
    }
};
KOVA_OVER_EVERY_ENGINE(Lookups);

TEST_P(Lookups, OfServicesTakeFiveArgumentsFromThePicker)
{
    Expect(ServicesClass, ServiceRows({2}), {Long(2), Integer(0), Long(1), "ban", Long(4)});
    Expect(ServicesClass, ServiceRows({2, 1}), {Long(2), Integer(0), Long(1), "", Long(0)});
    Expect(ServicesClass, ServiceRows({1}), {Long(2), Integer(0), Long(1), "1", Long(0)});
}

TEST_P(Lookups, OfServicesTakeSevenArgumentsFromTheForms)
{
    ExpectServices({1}, 0, "CLINICA", 0);
    ExpectServices({2}, 4, "", 2);
}

TEST_P(Lookups, OfCustomersTakeElevenArguments)
{
    ExpectCustomers({11}, "canil");
    ExpectCustomers({10}, "", "jose");
    ExpectCustomers({11}, "", "", 11);
    ExpectCustomers({10}, "", "", 0, "ipe");
}

TEST_P(Lookups, OfAnimalsTakeANumberOrAText)
{
    ExpectAnimals({50}, Long(50), 10);
    Text name = "leao";
    ExpectAnimals({51}, ByRef(name), 0);
    ExpectAnimals({51}, "51", 0);
}

TEST_P(Lookups, OfACustomersAnimalsGiveNameAndCodeOfTheActiveOnes)
{
    Double customer = 10;
    Expect(AnimalsClass, AnimalComboRows({50}), {ByRef(customer), Integer(1)},
           "SelecionarParaComboBoxFiltradoPorCliente");
}

TEST_P(Lookups, ThatFindNothingAreASuccessWithTheirFieldsAndWithoutRows)
{
    ExpectServices({}, 1, "banho", 0);
    ExpectServices({}, 0, "", 99);
    ExpectCustomers({}, "ninguém");
    ExpectCustomers({}, "", "", 99);
    ExpectAnimals({}, "ninguém", 0);
    ExpectAnimals({}, Long(50), 11);
    Double customer = 99, species = 99, all = 0;
    Expect(AnimalsClass, AnimalComboRows({}), {ByRef(customer), Integer(1)},
           "SelecionarParaComboBoxFiltradoPorCliente");
    Expect(BreedsClass, {{"Nome", "Codigo"}, {}}, {ByRef(species), ByRef(all)}, "SelecionarParaComboBox");
    Expect(HolidaysClass, {HolidayRows().fields, {}}, {Long(2), Integer(0), Long(0), "24/12"});
}

TEST_P(Lookups, OfHolidaysTakeADayOrADate)
{
    for (Text date : {"25/12", "25/12/2026", "25/12/2031"})
        Expect(HolidaysClass, HolidayRows(), {Long(2), Integer(0), Long(0), ByRef(date)});
}

TEST_P(Lookups, TakeTheUsersObjectBefore)
{
    for (const char* name : {CustomersClass, HolidaysClass})
        EXPECT_NO_THROW(Create(name)->Set("DadosDoUsuario", std::make_shared<User>())) << name;
}

TEST_P(Lookups, OfAnInactiveAnimalAreRefusedWithATextForTheUser)
{
    const ComponentRef animals = Create(AnimalsClass);
    TheEngine().NextCallRefuses(std::string(AnimalsClass) + ".Selecionar", 2,
                                "Animal inativo. Selecione outro animal.");
    const Value status = animals->Call(
        "Selecionar",
        {Long(2), Integer(0), Long(1), FormerAnimal::Code, Integer(1), Double(FormerAnimal::Owner)});
    EXPECT_EQ(status.ToInteger(), 2);
    EXPECT_EQ(animals->Get("DescricaoDaFalha"), Value("Animal inativo. Selecione outro animal."));
}

TEST_P(Lookups, LeaveAnInactiveAnimalOutWhereATextIsSought)
{
    const ComponentRef animals = Create(AnimalsClass);
    EXPECT_EQ(Ask(AnimalsClass, "Selecionar", *animals, AnimalRows({}),
                  {Long(2), Integer(0), Long(1), FormerAnimal::Name, Integer(1), Double(0)})
                  .ToInteger(),
              0);
    EXPECT_EQ(ResultOf(*animals)->RecordCount(), 0);
    EXPECT_EQ(animals->Get("DescricaoDaFalha").ToText(), "");
}

} // namespace kova::conformance
