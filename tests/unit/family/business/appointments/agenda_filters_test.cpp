#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/appointments/agenda.hpp"

namespace kova::family::test {

using Numbers = std::vector<int>;

class AgendaFilters : public ShopTest { };

TEST_F(AgendaFilters, FindTheDayByStartThenNumber)
{
    EXPECT_EQ(Find(""), (Numbers{8, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(FindOn("21/11/2026"), (Numbers{9}));
    EXPECT_EQ(FindOn("1/1/2027"), Numbers());
}

TEST_F(AgendaFilters, FindEachStatus)
{
    EXPECT_EQ(Find("", 1), (Numbers{1, 2, 3, 4, 6}));
    EXPECT_EQ(Find("", 2), (Numbers{5}));
    EXPECT_EQ(Find("", 3), (Numbers{8}));
    EXPECT_EQ(Find("", 4), (Numbers{7}));
}

TEST_F(AgendaFilters, FindAServiceType)
{
    EXPECT_EQ(Find("", 0, 1), (Numbers{1, 3}));
    EXPECT_EQ(Find("", 0, 4), (Numbers{8, 2, 4, 5, 6, 7}));
    EXPECT_EQ(Find("", 0, 99), Numbers());
}

TEST_F(AgendaFilters, FindAnEmployee) { EXPECT_EQ(Find("", 0, 0, 1), (Numbers{1, 3})); }

TEST_F(AgendaFilters, FindTransport)
{
    EXPECT_EQ(Find("", 0, 0, 0, 1), (Numbers{5}));
    EXPECT_EQ(Find("", 0, 0, 0, 2), (Numbers{5, 6}));
    EXPECT_EQ(Find("", 0, 0, 0, 3), (Numbers{5, 7}));
}

TEST_F(AgendaFilters, TakeTheTransportAsADoubleOrALong)
{
    Agenda agenda(host_);
    for (const Value& transport : {Value(Double(2)), Value(Long(2))}) {
        agenda.Call("Selecionar",
                    {Long(2), Integer(0), Long(0), "", "20/11/2026", Long(0), Long(0), transport});
        EXPECT_EQ(NumbersOf(*ResultOf(agenda)), (Numbers{5, 6}));
    }
}

TEST_F(AgendaFilters, IgnoreCaseAndAccentsOfTheText)
{
    const Numbers ofJose{1, 2};
    for (const char* text : {"jose", "JOSÉ", "José Antônio", "se ant", "  pecanha ", "ZÉ", "PAÇOCA", "coca"})
        EXPECT_EQ(Find(text), ofJose) << text;
    EXPECT_EQ(Find("ceu azul"), (Numbers{8, 3, 5, 6, 7}));
}

TEST_F(AgendaFilters, FindTheTypedTextsOfASimplifiedAppointment)
{
    EXPECT_EQ(Find("iris conceicao"), (Numbers{4}));
    EXPECT_EQ(Find("BIDU"), (Numbers{4}));
}

TEST_F(AgendaFilters, FindAPartOfTheAddress)
{
    EXPECT_EQ(Find("ipe, 110"), (Numbers{1, 2}));
    EXPECT_EQ(Find("00123-456"), (Numbers{8, 1, 2, 3, 5, 6, 7}));
}

TEST_F(AgendaFilters, DoNotFindATextThatRunsOverTwoFields) { EXPECT_EQ(Find("ze jose"), Numbers()); }

TEST_F(AgendaFilters, FindADocumentWithOrWithoutPunctuation)
{
    EXPECT_EQ(Find("12345678909"), (Numbers{1, 2}));
    EXPECT_EQ(Find("123.456.789-09"), (Numbers{1, 2}));
    EXPECT_EQ(Find("11.222.333/0001-81"), (Numbers{8, 3, 5, 6, 7}));
    EXPECT_EQ(Find("1234567890"), Numbers());
}

TEST_F(AgendaFilters, FindADocumentThatHasLetters)
{
    RunUnchecked(shop_.DataSource(), "update cliente set documento = '12ABC34501DE35' where codigo = 11");
    EXPECT_EQ(Find("12.abc.345/01de-35"), (Numbers{8, 3, 5, 6, 7}));
    EXPECT_EQ(Find("12ABC34501DE35"), (Numbers{8, 3, 5, 6, 7}));
    EXPECT_EQ(Find("12ABC34501DE"), Numbers());
}

TEST_F(AgendaFilters, FindCodesExactly)
{
    EXPECT_EQ(Find("10"), (Numbers{1, 2})) << "customer 10; no address holds 10 but its own 110";
    EXPECT_EQ(Find("51"), (Numbers{8, 3, 5, 6, 7}));
    EXPECT_EQ(Find("5"), (Numbers{8, 1, 2, 3, 5, 6, 7})) << "only the postal code holds a 5";
    EXPECT_EQ(Find("52"), Numbers());
}

TEST_F(AgendaFilters, FindAMicrochipExactly)
{
    EXPECT_EQ(Find("999000000000001"), (Numbers{1, 2}));
    EXPECT_EQ(Find("99900000000000"), Numbers());
}

TEST_F(AgendaFilters, ApplyAllTogether)
{
    EXPECT_EQ(Find("ceu", 2, 4, 2, 1), (Numbers{5}));
    EXPECT_EQ(Find("ceu", 1, 4, 2, 2), (Numbers{6}));
    EXPECT_EQ(Find("jose", 2, 4, 2, 1), Numbers());
    EXPECT_EQ(Find("jose", 1, 4), (Numbers{2}));
}

TEST_F(AgendaFilters, TakeEveryTextAsData)
{
    for (const char* text : {"' or 1=1 --", "%", "_", "!", "\"; drop table agendamento; --", "\\", "jo%e"})
        EXPECT_EQ(Find(text), Numbers()) << text;
    EXPECT_EQ(Find("").size(), 8U);
    Agenda agenda(host_);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("20/11/2026' or '1'='1")), Value(Integer(1)));
}

} // namespace kova::family::test
