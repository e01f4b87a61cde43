#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

class Registers : public BusinessTest {
protected:
    Rows Found(const std::string& className, const Rows& finds)
    {
        const ComponentRef object = Create(className);
        EXPECT_EQ(Fill(className, *object, finds).ToLong(), 0);
        return ContentOf(*ResultOf(*object));
    }
};
KOVA_OVER_EVERY_ENGINE(Registers);

TEST_P(Registers, OfServiceTypesGiveNameAndNumberByName)
{
    ExpectSame(Found(TypesClass, TypeRows()),
               {{"Nome", "Numero"}, {{"Banho e tosa", Long(4)}, {"Consulta", Long(1)}}});
}

TEST_P(Registers, OfEmployeesGiveNicknameAndCodeOfTheActiveOnesByName)
{
    ExpectSame(Found(EmployeesClass, EmployeeRows()),
               {{"Apelido", "Codigo"}, {{"Bia", Long(2)}, {"Zeca", Long(1)}}});
}

TEST_P(Registers, OfTheCompanyGiveItsTradeName)
{
    ExpectSame(Found(CompanyClass, CompanyRows()), {{"NomeFantasia"}, {{"Pet Shop Amigo Fiel"}}});
}

TEST_P(Registers, GiveTheirRowsWithTheirTypesInTheirOrder)
{
    for (const auto& [name, rows] : AllRegisters()) {
        SCOPED_TRACE(name);
        ExpectSame(Found(name, rows), rows);
    }
}

TEST_P(Registers, HaveAValueInEveryColumnOfEveryRow)
{
    for (const auto& [name, rows] : AllRegisters())
        for (const auto& row : Found(name, rows).rows)
            for (const Value& value : row)
                EXPECT_FALSE(value.IsNull() || value.IsEmpty()) << name;
}

TEST_P(Registers, AnswerTheSameAgainOnOneObject)
{
    const ComponentRef types = Create(TypesClass);
    Fill(TypesClass, *types, TypeRows());
    const RecordSetRef former = ResultOf(*types);
    Fill(TypesClass, *types, TypeRows());
    EXPECT_NE(ResultOf(*types), former);
    ExpectSame(ContentOf(*ResultOf(*types)), ContentOf(*former));
}

class SystemVersion : public BusinessTest { };
KOVA_OVER_EVERY_ENGINE(SystemVersion);

TEST_P(SystemVersion, IsATextThatNamesTheOperatingSystem)
{
    const Value name = Create(SystemClass)->Call("ObterversaoDoSO");
    EXPECT_EQ(name.GetType(), ValueType::Text);
    EXPECT_NE(name.ToText(), "");
    EXPECT_NE(name.ToText(), "Windows 8");
    EXPECT_EQ(Create(SystemClass)->Call("ObterversaoDoSO"), name);
}

} // namespace kova::conformance
