#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/registers/breeds.hpp"
#include "family/business/registers/employees.hpp"
#include "family/business/registers/service_types.hpp"
#include "family/business/registers/species.hpp"
#include "family/business/shop/company.hpp"
#include "family/business/shop/system_version.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/sources/shared_database.hpp"

#include <limits>

namespace kova::family::test {

class Registers : public ShopTest { };

namespace {

/// "TEXT=KEY" of every row.
std::vector<std::string> RowsOf(RecordSet& records, const char* text, const char* key)
{
    std::vector<std::string> rows;
    for (; !records.Eof(); records.MoveNext())
        rows.push_back(records.Field(text).ToText() + "=" + records.Field(key).ToText());
    return rows;
}

} // namespace

TEST_F(Registers, GiveTheServiceTypesByName)
{
    Double all = 0;
    ServiceTypes types(host_);
    ASSERT_EQ(types.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(0)));
    EXPECT_EQ(RowsOf(*ResultOf(types), "Nome", "Numero"),
              (std::vector<std::string>{"Banho e tosa=4", "Consulta=1"}));
}

TEST_F(Registers, GiveTheActiveEmployeesByName)
{
    Double all = 0;
    Employees employees(host_);
    ASSERT_EQ(employees.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(0)));
    EXPECT_EQ(RowsOf(*ResultOf(employees), "Apelido", "Codigo"),
              (std::vector<std::string>{"Bia=2", "Zeca=1"}));
}

TEST_F(Registers, GiveTheEmployeesInTheOrderOfTheNicknamesThatAreShown)
{
    Database& database = *SharedDatabase(host_.DataSource());
    Insert(database, EmployeeRow{11, "ângela", "Zulmira Prado", "zulmira prado", 1, 1});
    Insert(database, EmployeeRow{12, "Ana", "Yara Lopes", "yara lopes", 1, 1});
    Insert(database, EmployeeRow{10, "ANA", "Zilda Reis", "zilda reis", 1, 1});
    Double all = 0;
    Employees employees(host_);
    ASSERT_EQ(employees.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(0)));
    EXPECT_EQ(RowsOf(*ResultOf(employees), "Apelido", "Codigo"),
              (std::vector<std::string>{"ANA=10", "Ana=12", "ângela=11", "Bia=2", "Zeca=1"}));
}

TEST_F(Registers, GiveKeysAsLongs)
{
    Double all = 0;
    Employees employees(host_);
    employees.Call("SelecionarParaComboBox", {ByRef(all)});
    EXPECT_EQ(ResultOf(employees)->Field("Codigo").GetType(), ValueType::Long);
}

TEST_F(Registers, GiveOneRowForAKey)
{
    Double one = 1;
    Employees employees(host_);
    employees.Call("SelecionarParaComboBox", {ByRef(one)});
    EXPECT_EQ(RowsOf(*ResultOf(employees), "Apelido", "Codigo"), (std::vector<std::string>{"Zeca=1"}));
}

TEST_F(Registers, GiveNoRowForANumberThatIsNoKey)
{
    for (const Double number : {1.5, -1.0, 1e19, -1e300, std::numeric_limits<Double>::infinity(),
                                std::numeric_limits<Double>::quiet_NaN()}) {
        Employees employees(host_);
        ServiceTypes types(host_);
        for (Component* component : std::initializer_list<Component*>{&employees, &types}) {
            ASSERT_EQ(component->Call("SelecionarParaComboBox", {number}), Value(Integer(0))) << number;
            EXPECT_EQ(ResultOf(*component)->RecordCount(), 0) << number;
        }
    }
}

TEST_F(Registers, GiveTheActiveSpeciesByName)
{
    Database& database = *SharedDatabase(host_.DataSource());
    Insert(database, SpeciesRow{2, "Ave", "ave"});
    Insert(database, SpeciesRow{3, "Bovina", "bovina", 2});
    Double all = 0;
    Species species(host_);
    ASSERT_EQ(species.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(0)));
    EXPECT_EQ(RowsOf(*ResultOf(species), "Nome", "Codigo"), (std::vector<std::string>{"Ave=2", "Canina=1"}));
    EXPECT_EQ(all, 0);
    ASSERT_EQ(species.Call("SelecionarParaComboBox", {Double(1)}), Value(Integer(0)));
    EXPECT_EQ(RowsOf(*ResultOf(species), "Nome", "Codigo"), (std::vector<std::string>{"Canina=1"}));
}

TEST_F(Registers, GiveTheActiveBreedsOfOneSpeciesByName)
{
    Database& database = *SharedDatabase(host_.DataSource());
    Insert(database, SpeciesRow{2, "Ave", "ave"});
    Insert(database, BreedRow{2, 1, "Águia do campo", "aguia do campo"});
    Insert(database, BreedRow{3, 1, "Dingo", "dingo", 2});
    Insert(database, BreedRow{4, 2, "Canário", "canario"});
    Double species = 1, all = 0;
    Breeds breeds(host_);
    ASSERT_EQ(breeds.Call("SelecionarParaComboBox", {ByRef(species), ByRef(all)}), Value(Integer(0)));
    EXPECT_EQ(ResultOf(breeds)->Field("Codigo").GetType(), ValueType::Long);
    EXPECT_EQ(RowsOf(*ResultOf(breeds), "Nome", "Codigo"),
              (std::vector<std::string>{"Águia do campo=2", "Poodle=1"}));
}

TEST_F(Registers, GiveNoBreedOfASpeciesThatHasNoneOrIsUnknown)
{
    Insert(*SharedDatabase(host_.DataSource()), SpeciesRow{2, "Ave", "ave"});
    Breeds breeds(host_);
    for (const Double species : {2.0, 99.0, 0.0, 1.5, -1.0, 1e300}) {
        ASSERT_EQ(breeds.Call("SelecionarParaComboBox", {species, Double(0)}), Value(Integer(0)));
        EXPECT_EQ(ResultOf(breeds)->RecordCount(), 0) << species;
        EXPECT_EQ(ResultOf(breeds)->FieldCount(), 2);
    }
}

TEST_F(Registers, GiveTheTradeNameOfTheCompany)
{
    Company company(host_);
    ASSERT_EQ(company.Call("SelecionarNova", {Long(2), Integer(0), Long(1), ""}), Value(Integer(0)));
    EXPECT_EQ(ResultOf(company)->RecordCount(), 1);
    EXPECT_EQ(ResultOf(company)->Field("NomeFantasia"), Value("Pet Shop Amigo Fiel"));
}

TEST_F(Registers, NameTheOperatingSystem)
{
    SystemVersion version(host_);
    EXPECT_FALSE(version.Call("ObterversaoDoSO").ToText().empty());
}

} // namespace kova::family::test
