#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

class Paging : public BusinessTest {
protected:
    ComponentRef agenda_ = Create(AgendaClass);
};
KOVA_OVER_EVERY_ENGINE(Paging);

TEST_P(Paging, CutsTheDayIntoFullPagesAndAShortLastOne)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    EXPECT_EQ(day->RecordCount(), 7);
    EXPECT_EQ(day->PageSize(), 3);
    EXPECT_EQ(day->PageCount(), 3);
    EXPECT_EQ(day->AbsolutePage(), 1);
    EXPECT_EQ(PagedDay(*agenda_, 7)->PageCount(), 1);
    EXPECT_EQ(PagedDay(*agenda_, 6)->PageCount(), 2);
    EXPECT_EQ(PagedDay(*agenda_, 100)->PageCount(), 1);
}

TEST_P(Paging, GoesToTheFirstRowOfAPage)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    day->AbsolutePage(2);
    EXPECT_EQ(day->AbsolutePosition(), 4);
    EXPECT_EQ(day->Field("NumeroDeLancamento"), Value(Double(3)));
    day->MoveLast();
    EXPECT_EQ(day->AbsolutePage(), 3);
    day->MoveNext();
    EXPECT_EQ(day->AbsolutePage(), -3);
    day->MoveFirst();
    day->MovePrevious();
    EXPECT_EQ(day->AbsolutePage(), -2);
}

TEST_P(Paging, RefusesASizeBelowOneAndKeepsItsOwn)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    EXPECT_EQ(NumberOfFailure([&] { day->PageSize(0); }), 3001);
    EXPECT_EQ(day->PageSize(), 3);
}

class PagingBeyondTheEnd : public Paging { };
KOVA_OVER_ENGINES(PagingBeyondTheEnd, EnginesWithout(&EngineKind::endsOnTheLastPage));

TEST_P(PagingBeyondTheEnd, FailsAndStaysWhereItWas)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    day->AbsolutePage(2);
    for (const Long page : {0, -1, 4, 32767})
        EXPECT_EQ(NumberOfFailure([&] { day->AbsolutePage(page); }), 3001) << page;
    EXPECT_EQ(day->AbsolutePage(), 2);
}

class PagingToTheEnd : public Paging { };
KOVA_OVER_ENGINES(PagingToTheEnd, EnginesWith(&EngineKind::endsOnTheLastPage));

TEST_P(PagingToTheEnd, TakesAPageBeyondTheLastAsTheLast)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    for (const Long page : {4, 32767}) {
        day->AbsolutePage(1);
        day->AbsolutePage(page);
        EXPECT_EQ(day->AbsolutePage(), 3) << page;
        EXPECT_EQ(NumbersOf(*Page(*agenda_, 3)), (std::vector<int>{7})) << page;
    }
}

TEST_P(PagingToTheEnd, TakesAPageBelowTheFirstAsTheFirst)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    for (const Long page : {0, -1}) {
        day->AbsolutePage(2);
        day->AbsolutePage(page);
        EXPECT_EQ(day->AbsolutePage(), 1) << page;
    }
}

TEST_P(Paging, OfNothingFoundHasNoPage)
{
    Select(*agenda_, {.mode = 1, .pageRows = 3, .date = EmptyDay}, {});
    const RecordSetRef nothing = ResultOf(*agenda_);
    EXPECT_EQ(nothing->PageCount(), 0);
    EXPECT_EQ(nothing->AbsolutePage(), 0);
    EXPECT_EQ(NumberOfFailure([&] { nothing->AbsolutePage(1); }), 3021);
    const RecordSetRef page = Page(*agenda_, 3);
    EXPECT_EQ(page->RecordCount(), 0);
    EXPECT_EQ(page->FieldCount(), 37);
    EXPECT_TRUE(page->Eof());
}

TEST_P(Paging, CountsAPageBelowOneRowAsOne)
{
    for (const Integer rows : {Integer(0), Integer(-5)}) {
        EXPECT_EQ(PagedDay(*agenda_, rows)->PageSize(), 1) << rows;
        EXPECT_EQ(ResultOf(*agenda_)->PageCount(), 7) << rows;
        EXPECT_EQ(NumbersOf(*Page(*agenda_, rows)), (std::vector<int>{5})) << rows;
    }
}

TEST_P(Paging, CopiesThePageOnWhichTheSelectionStands)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    ExpectSame(ContentOf(*Page(*agenda_, 3)), AppointmentRows({5, 1, 2}));
    day->AbsolutePage(2);
    ExpectSame(ContentOf(*Page(*agenda_, 3)), AppointmentRows({3, 4, 6}));
    day->AbsolutePage(3);
    ExpectSame(ContentOf(*Page(*agenda_, 3)), AppointmentRows({7}));
}

TEST_P(Paging, CopiesAPageThatStandsOnItsFirstRow)
{
    PagedDay(*agenda_, 3)->AbsolutePage(2);
    const RecordSetRef page = Page(*agenda_, 3);
    EXPECT_EQ(page->AbsolutePosition(), 1);
    EXPECT_EQ(page->RecordCount(), 3);
    EXPECT_FALSE(page->Eof());
}

TEST_P(Paging, CopiesThePageFromItsFirstRowWhereverInItTheCursorIs)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    day->AbsolutePage(2);
    day->MoveNext();
    day->MoveNext();
    EXPECT_EQ(NumbersOf(*Page(*agenda_, 3)), (std::vector<int>{3, 4, 6}));
    EXPECT_EQ(day->AbsolutePosition(), 6);
}

TEST_P(Paging, LeavesTheCursorOfTheSelection)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    for (Long page = 1; page <= 3; ++page) {
        day->AbsolutePage(page);
        Page(*agenda_, 3);
        EXPECT_EQ(day->AbsolutePage(), page);
        EXPECT_EQ(day->AbsolutePosition(), (page - 1) * 3 + 1);
    }
}

TEST_P(Paging, CopiesNothingOfASelectionThatHasRunOut)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    day->MoveLast();
    day->MoveNext();
    EXPECT_EQ(Page(*agenda_, 3)->RecordCount(), 0);
    EXPECT_TRUE(day->Eof());
}

TEST_P(Paging, CopiesAreIndependentOfTheSelectionAndOfEachOther)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    const RecordSetRef first = Page(*agenda_, 3);
    const RecordSetRef second = Page(*agenda_, 3);
    first->MoveLast();
    first->Sort("HoraInicial DESC");
    EXPECT_EQ(day->AbsolutePosition(), 1);
    EXPECT_EQ(day->Sort(), "");
    EXPECT_EQ(second->AbsolutePosition(), 1);
    day->AbsolutePage(3);
    EXPECT_EQ(NumbersOf(*second), (std::vector<int>{5, 1, 2}));
    EXPECT_EQ(NumbersOf(*first), (std::vector<int>{2, 1, 5}));
}

TEST_P(Paging, FollowsTheOrderOfTheSelection)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    day->Sort("NumeroDeLancamento DESC");
    EXPECT_EQ(day->AbsolutePage(), 1);
    EXPECT_EQ(NumbersOf(*Page(*agenda_, 3)), (std::vector<int>{7, 6, 5}));
    day->AbsolutePage(3);
    EXPECT_EQ(NumbersOf(*Page(*agenda_, 3)), (std::vector<int>{1}));
}

TEST_P(Paging, FollowsAPageSizeThatIsWrittenLater)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    day->PageSize(5);
    EXPECT_EQ(day->PageCount(), 2);
    day->AbsolutePage(2);
    EXPECT_EQ(NumbersOf(*Page(*agenda_, 5)), (std::vector<int>{6, 7}));
}

TEST_P(Paging, BeginsOnTheFirstPageOfTheNextSelection)
{
    PagedDay(*agenda_, 3)->AbsolutePage(3);
    EXPECT_EQ(PagedDay(*agenda_, 3)->AbsolutePage(), 1);
}

} // namespace kova::conformance
