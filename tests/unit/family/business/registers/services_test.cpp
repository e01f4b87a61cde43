#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/registers/services.hpp"
#include "family/business/shop/database_component.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

/// Beside "Consulta clínica", 1, of type 1 and "Banho", 2, of type 4.
class ServiceSearch : public ShopTest {
protected:
    ServiceSearch()
    {
        Add(13, "Hidratação", 4, 30, 504500, 1);
        Add(4, "Banho com hidratação", 4, 1500, 5, 1);
        Add(5, "Banho", 1, 45, 4500, 1);
        Add(6, "Banho a seco", 4, 20, 100, 2);
    }

    void Add(Key code, const char* name, Key type, int minutes, Key cents, int situation)
    {
        Insert(
            *SharedDatabase(host_.DataSource()),
            ServiceRow{code, name, FoldText(name), "Descrição", type, minutes, cents, 1250, {}, situation});
    }

    std::vector<int> Codes(std::vector<Argument> arguments)
    {
        Services services(host_);
        EXPECT_EQ(services.Call("Selecionar", std::move(arguments)), Value(Integer(0)));
        std::vector<int> codes;
        for (const RecordSetRef records = ResultOf(services); !records->Eof(); records->MoveNext())
            codes.push_back(records->Field("Codigo").ToLong());
        return codes;
    }

    /// As the service picker asks.
    std::vector<int> Picker(const char* text, Long type = 0)
    {
        return Codes({Long(2), Integer(0), Long(1), text, type});
    }

    /// As the record forms ask.
    std::vector<int> Form(Text name, Double code, Integer type = 0)
    {
        return Codes({Long(2), Integer(0), Long(1), "", ByRef(type), ByRef(name), ByRef(code)});
    }

    using List = std::vector<int>;
};

TEST_F(ServiceSearch, FindsAPartOfTheNameByNameThenCode)
{
    EXPECT_EQ(Picker("banho"), (List{2, 5, 4}));
    EXPECT_EQ(Picker("HIDRATACAO"), (List{4, 13}));
    EXPECT_EQ(Form("ínica", 0), (List{1}));
    EXPECT_EQ(Picker("  tação "), (List{4, 13}));
    EXPECT_EQ(Picker("ração"), (List{}));
}

TEST_F(ServiceSearch, FindsACodeExactlyByDigits)
{
    EXPECT_EQ(Picker("1"), (List{1}));
    EXPECT_EQ(Picker("13"), (List{13}));
    EXPECT_EQ(Picker("3"), (List{}));
    EXPECT_EQ(Form("", 13), (List{13}));
    EXPECT_EQ(Form("13", 0), (List{})) << "the name is not the code";
}

TEST_F(ServiceSearch, KeepsToTheType)
{
    EXPECT_EQ(Picker("banho", 4), (List{2, 4}));
    EXPECT_EQ(Picker("banho", 1), (List{5}));
    EXPECT_EQ(Form("", 1, 4), (List{}));
    EXPECT_EQ(Picker("", 4), (List{2, 4, 13}));
    EXPECT_EQ(Picker(""), (List{2, 5, 4, 1, 13}));
}

TEST_F(ServiceSearch, AppliesNameAndCodeTogether)
{
    EXPECT_EQ(Form("banho", 4), (List{4}));
    EXPECT_EQ(Form("consulta", 4), (List{}));
}

TEST_F(ServiceSearch, LeavesInactiveServicesOut)
{
    EXPECT_EQ(Picker("seco"), (List{}));
    EXPECT_EQ(Form("", 6), (List{}));
}

TEST_F(ServiceSearch, TakesACodeThatIsNoneAsOneThatNobodyHas)
{
    for (const Double code : {-1.0, 1.5, 9223372036854775808.0, 1e300, -1e300})
        EXPECT_EQ(Form("", code), (List{})) << code;
}

TEST_F(ServiceSearch, GivesMoneyDurationAndTypedFields)
{
    Services services(host_);
    services.Call("Selecionar", {Long(2), Integer(0), Long(1), "13", Long(0)});
    const RecordSetRef row = ResultOf(services);
    EXPECT_EQ(row->Field("Codigo"), Value(13.0));
    EXPECT_EQ(row->Field("Nome"), Value("Hidratação"));
    EXPECT_EQ(row->Field("Descricao"), Value("Descrição"));
    EXPECT_EQ(row->Field("ValorDeVenda"), Value("5.045,00"));
    EXPECT_EQ(row->Field("Custo"), Value("12,50"));
    EXPECT_EQ(row->Field("NumeroDoTipoDeServico"), Value(Long(4)));
    EXPECT_EQ(row->Field("TempoDeExecucao"), Value("00:30"));
}

TEST_F(ServiceSearch, GivesNoMoneyWhileWhoeverIsAtTheDeskMaySeeNone)
{
    DatabaseComponent database(host_);
    Services services(host_);
    const auto prices = [&] {
        services.Call("Selecionar", {Long(2), Integer(0), Long(1), "13", Long(0)});
        const RecordSetRef row = ResultOf(services);
        EXPECT_EQ(row->Field("Nome"), Value("Hidratação"));
        return row->Field("ValorDeVenda").ToText() + "|" + row->Field("Custo").ToText();
    };
    database.Set("OcultarPrecos", true);
    EXPECT_EQ(prices(), "|");
    database.Set("OcultarPrecos", false);
    EXPECT_EQ(prices(), "5.045,00|12,50");
}

TEST_F(ServiceSearch, TakesFiveToSevenArguments)
{
    Services services(host_);
    EXPECT_THROW(services.Call("Selecionar", {Long(2), Integer(0), Long(1), ""}), Failure);
    EXPECT_THROW(
        services.Call("Selecionar", {Long(2), Integer(0), Long(1), "", Long(0), "", Double(0), Long(0)}),
        Failure);
}

TEST_F(ServiceSearch, PagesWhereItIsAskedTo)
{
    Services services(host_);
    services.Call("Selecionar", {Long(1), Integer(2), Long(1), "", Long(0)});
    EXPECT_EQ(ResultOf(services)->PageCount(), 3);
    services.Call("Selecionar", {Long(2), Integer(2), Long(1), "", Long(0)});
    EXPECT_EQ(ResultOf(services)->PageCount(), 1);
}

TEST(ShownMoney, HasACommaTwoDecimalsAndPointsBetweenThousands)
{
    EXPECT_EQ(ShownMoney(4500), "45,00");
    EXPECT_EQ(ShownMoney(0), "0,00");
    EXPECT_EQ(ShownMoney(5), "0,05");
    EXPECT_EQ(ShownMoney(99999), "999,99");
    EXPECT_EQ(ShownMoney(100000), "1.000,00");
    EXPECT_EQ(ShownMoney(123456789012), "1.234.567.890,12");
    EXPECT_EQ(ShownMoney(-5), "-0,05");
    EXPECT_EQ(ShownMoney(-123456), "-1.234,56");
}

} // namespace kova::family::test
