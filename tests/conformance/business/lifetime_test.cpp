#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

class Lifetime : public BusinessTest { };
KOVA_OVER_EVERY_ENGINE(Lifetime);

TEST_P(Lifetime, OfTwoObjectsLetsThemHoldTwoSelections)
{
    const ComponentRef busy = Create(AgendaClass);
    const ComponentRef quiet = Create(AgendaClass);
    Select(*busy, {}, WholeDay());
    Select(*quiet, {.date = QuietDay}, {8});
    EXPECT_EQ(NumbersOf(*ResultOf(*busy)), WholeDay());
    EXPECT_EQ(NumbersOf(*ResultOf(*quiet)), (std::vector<int>{8}));
}

TEST_P(Lifetime, OfTwoObjectsLetsThemHoldTwoCursorsOfTheSameDay)
{
    const ComponentRef first = Create(AgendaClass);
    const ComponentRef second = Create(AgendaClass);
    PagedDay(*first, 3)->AbsolutePage(2);
    PagedDay(*second, 3)->AbsolutePage(3);
    EXPECT_EQ(ResultOf(*first)->AbsolutePage(), 2);
    EXPECT_EQ(ResultOf(*second)->AbsolutePage(), 3);
}

TEST_P(Lifetime, OfTwoObjectsKeepsTheFailureOfOneFromTheOther)
{
    const ComponentRef failing = Create(TypesClass);
    const ComponentRef working = Create(TypesClass);
    Fill(TypesClass, *working, TypeRows());
    TheEngine().BreakData();
    EXPECT_NE(Fill(TypesClass, *failing, TypeRows()).ToLong(), 0);
    TheEngine().MendData();
    EXPECT_NE(failing->Get("NumeroDoErro").ToLong(), 0);
    EXPECT_EQ(working->Get("NumeroDoErro").ToLong(), 0);
    EXPECT_EQ(ResultOf(*working)->RecordCount(), 2);
}

TEST_P(Lifetime, OfARecordSetDoesNotEndWithItsObject)
{
    const RecordSetRef day = Selected({}, WholeDay());
    ExpectSame(ContentOf(*day), AppointmentRows(WholeDay()));
}

TEST_P(Lifetime, OfAPageDoesNotEndWithItsObjectOrItsSelection)
{
    RecordSetRef page;
    {
        const ComponentRef agenda = Create(AgendaClass);
        PagedDay(*agenda, 3);
        page = Page(*agenda, 3);
    }
    ExpectSame(ContentOf(*page), AppointmentRows({5, 1, 2}));
}

TEST_P(Lifetime, OfARecordSetDoesNotEndWithTheNextSelection)
{
    const ComponentRef agenda = Create(AgendaClass);
    Select(*agenda, {}, WholeDay());
    const RecordSetRef former = ResultOf(*agenda);
    Select(*agenda, {.date = QuietDay}, {8});
    EXPECT_EQ(NumbersOf(*former), WholeDay());
    EXPECT_EQ(NumbersOf(*ResultOf(*agenda)), (std::vector<int>{8}));
}

TEST_P(Lifetime, OfAResultIsThatOfOneRecordSetForEveryReader)
{
    const ComponentRef agenda = Create(AgendaClass);
    PagedDay(*agenda, 3)->AbsolutePage(2);
    EXPECT_EQ(ResultOf(*agenda)->AbsolutePage(), 2);
    EXPECT_EQ(agenda->Get("ResultadoDaSelecaoEmRecordSet"), agenda->Get("ResultadoDaSelecaoEmRecordSet"));
}

/// Engines whose code lies in a library that can be unloaded.
class LibraryLifetime : public BusinessTest { };
KOVA_OVER_ENGINES(LibraryLifetime, EnginesWith(&EngineKind::livesInALibrary));

TEST_P(LibraryLifetime, LastsWhileAnObjectLives)
{
    ComponentRef agenda = Create(AgendaClass);
    EXPECT_FALSE(TheEngine().Unload());
    agenda.reset();
    EXPECT_TRUE(TheEngine().Unload());
}

TEST_P(LibraryLifetime, LastsWhileARecordSetLives)
{
    RecordSetRef day = Selected({}, WholeDay());
    EXPECT_FALSE(TheEngine().Unload());
    EXPECT_EQ(NumbersOf(*day), WholeDay());
    day.reset();
    EXPECT_TRUE(TheEngine().Unload());
}

TEST_P(LibraryLifetime, LastsWhileARecordSetOfEveryOtherClassLives)
{
    for (const auto& [name, rows] : AllRegisters()) {
        RecordSetRef records;
        {
            const ComponentRef object = Create(name);
            Fill(name, *object, rows);
            records = ResultOf(*object);
        }
        EXPECT_FALSE(TheEngine().Unload()) << name;
        EXPECT_GT(records->RecordCount(), 0) << name;
        records.reset();
        EXPECT_TRUE(TheEngine().Unload()) << name;
    }
}

TEST_P(LibraryLifetime, LastsWhileAPageLives)
{
    ObjectRef page;
    {
        const ComponentRef agenda = Create(AgendaClass);
        PagedDay(*agenda, 3);
        page = Page(*agenda, 3);
    }
    EXPECT_FALSE(TheEngine().Unload());
    page.reset();
    EXPECT_TRUE(TheEngine().Unload());
}

TEST_P(LibraryLifetime, BeginsAnewWithTheNextObject)
{
    EXPECT_EQ(NumbersOf(*Selected({}, WholeDay())), WholeDay());
    ASSERT_TRUE(TheEngine().Unload());
    EXPECT_EQ(NumbersOf(*Selected({}, WholeDay())), WholeDay());
}

} // namespace kova::conformance
