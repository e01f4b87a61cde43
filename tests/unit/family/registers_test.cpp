#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/company.hpp"
#include "family/business/employees.hpp"
#include "family/business/service_types.hpp"
#include "family/business/system_name.hpp"
#include "family/business/system_version.hpp"

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

TEST_F(Registers, TakeTheSystemNameFromTheReleaseFile)
{
    WriteContent(folder_ / "a", "NAME=x\nPRETTY_NAME=\"Sistema 12 (fim)\"\n");
    WriteContent(folder_ / "b", "PRETTY_NAME=Sistema\n");
    WriteContent(folder_ / "c", "PRETTY_NAME=\"\"\n");
    EXPECT_EQ(SystemName(folder_ / "a"), "Sistema 12 (fim)");
    EXPECT_EQ(SystemName(folder_ / "b"), "Sistema");
    EXPECT_EQ(SystemName(folder_ / "c"), "Linux");
    EXPECT_EQ(SystemName(folder_ / "missing"), "Linux");
}

} // namespace kova::family::test
