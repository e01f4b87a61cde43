#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/appointments/agenda.hpp"

namespace kova::family::test {

class AgendaPaging : public ShopTest {
protected:
    AgendaPaging() : agenda_(host_) { }

    void SelectPaged(Integer rows, const std::string& date = "20/11/2026")
    {
        ASSERT_EQ(agenda_.Call("Selecionar",
                               {Long(1), ByRef(rows), Long(0), "", date, Long(0), Long(0), Double(0)}),
                  Value(Integer(0)));
    }

    RecordSetRef Page(Integer rows)
    {
        ObjectRef page;
        EXPECT_TRUE(
            agenda_.Call("PaginarResultadoDaSelecaoEmRecordset", {ByRef(rows), ByRef(page)}).IsEmpty());
        return std::dynamic_pointer_cast<RecordSet>(page);
    }

    Agenda agenda_;
};

TEST_F(AgendaPaging, CutsTheDayIntoPages)
{
    SelectPaged(3);
    const RecordSetRef day = ResultOf(agenda_);
    EXPECT_EQ(day->RecordCount(), 8);
    EXPECT_EQ(day->PageCount(), 3);
    EXPECT_EQ(NumbersOf(*Page(3)), (std::vector<int>{8, 1, 2}));
    day->AbsolutePage(3);
    const RecordSetRef last = Page(3);
    EXPECT_EQ(last->RecordCount(), 2);
    EXPECT_EQ(last->FieldCount(), 37);
    EXPECT_EQ(NumbersOf(*last), (std::vector<int>{6, 7}));
    EXPECT_EQ(day->AbsolutePage(), 3);
}

TEST_F(AgendaPaging, TakesAPageBeyondTheLastAsTheLast)
{
    SelectPaged(3);
    ResultOf(agenda_)->AbsolutePage(9);
    EXPECT_EQ(ResultOf(agenda_)->AbsolutePage(), 3);
    EXPECT_EQ(NumbersOf(*Page(3)), (std::vector<int>{6, 7}));
}

TEST_F(AgendaPaging, TakesAPageBelowTheFirstAsTheFirstAndRefusesAnyOfAnEmptyDay)
{
    const auto numberOfFailure = [&](Long page) -> Long {
        try {
            ResultOf(agenda_)->AbsolutePage(page);
            return 0;
        } catch (const Failure& failure) {
            return failure.Number();
        }
    };
    SelectPaged(3);
    EXPECT_EQ(numberOfFailure(0), 0);
    EXPECT_EQ(ResultOf(agenda_)->AbsolutePage(), 1);
    SelectPaged(3, "01/01/2020");
    EXPECT_EQ(numberOfFailure(1), 3021);
}

TEST_F(AgendaPaging, CountsAPageSizeBelowOneAsOne)
{
    SelectPaged(0);
    EXPECT_EQ(ResultOf(agenda_)->PageSize(), 1);
    EXPECT_EQ(NumbersOf(*Page(-3)), (std::vector<int>{8}));
}

TEST_F(AgendaPaging, MakesOnePageOfAWholeSelection)
{
    agenda_.Call("Selecionar", DayArguments("20/11/2026"));
    EXPECT_EQ(ResultOf(agenda_)->PageCount(), 1);
}

TEST_F(AgendaPaging, GivesAnEmptyPageOfAnEmptyDay)
{
    SelectPaged(3, "01/01/2020");
    EXPECT_EQ(ResultOf(agenda_)->RecordCount(), 0);
    EXPECT_EQ(ResultOf(agenda_)->PageCount(), 0);
    EXPECT_EQ(Page(3)->RecordCount(), 0);
}

TEST_F(AgendaPaging, WithoutASelectionFailsForWantOfAnObject)
{
    Integer rows = 3;
    ObjectRef page;
    try {
        agenda_.Call("PaginarResultadoDaSelecaoEmRecordset", {ByRef(rows), ByRef(page)});
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 91);
    }
}

TEST_F(AgendaPaging, SortsByStart)
{
    agenda_.Call("Selecionar", DayArguments("20/11/2026"));
    ResultOf(agenda_)->Sort("HoraInicial DESC");
    EXPECT_EQ(NumbersOf(*ResultOf(agenda_)), (std::vector<int>{7, 6, 5, 3, 4, 2, 1, 8}));
}

TEST_F(AgendaPaging, LeavesARecordSetWholeWhenItsComponentAndConnectionAreGone)
{
    RecordSetRef day;
    {
        Agenda shortLived(host_);
        shortLived.Call("Selecionar", DayArguments("20/11/2026"));
        day = ResultOf(shortLived);
    }
    EXPECT_EQ(NumbersOf(*day), (std::vector<int>{8, 1, 2, 3, 4, 5, 6, 7}));
}

} // namespace kova::family::test
