#include "tests/conformance/business/suite.hpp"

#include <algorithm>

namespace kova::conformance {

class Status : public BusinessTest {
protected:
    /// A selection of the class that finds something as long as the data is whole.
    Value Run(const std::string& className, Component& object)
    {
        if (className == AgendaClass)
            return Select(object, {}, WholeDay());
        const auto found = std::find_if(AllRegisters().begin(), AllRegisters().end(),
                                        [&](const Register& entry) { return entry.className == className; });
        return Fill(className, object, found->rows);
    }
};
KOVA_OVER_EVERY_ENGINE(Status);

namespace {

constexpr const char* Selecting[] = {AgendaClass, TypesClass,    EmployeesClass, CompanyClass, SpeciesClass,
                                     BreedsClass, ServicesClass, CustomersClass, AnimalsClass, HolidaysClass};

} // namespace

TEST_P(Status, IsZeroWhereRowsAreFoundHoweverItIsRead)
{
    for (const char* name : Selecting) {
        const ComponentRef object = Create(name);
        const Value status = Run(name, *object);
        EXPECT_EQ(status.ToInteger(), 0) << name;
        EXPECT_EQ(status.ToLong(), 0) << name;
        EXPECT_FALSE(status.ToBoolean()) << name;
        EXPECT_GT(ResultOf(*object)->RecordCount(), 0) << name;
    }
}

TEST_P(Status, IsZeroWhereNothingIsFound)
{
    const ComponentRef agenda = Create(AgendaClass);
    EXPECT_EQ(Select(*agenda, {.date = EmptyDay}, {}).ToLong(), 0);
    const RecordSetRef nothing = ResultOf(*agenda);
    EXPECT_EQ(nothing->RecordCount(), 0);
    EXPECT_EQ(nothing->FieldCount(), 37);
    EXPECT_TRUE(nothing->Eof());
    EXPECT_TRUE(nothing->Bof());
}

TEST_P(Status, OfNothingFoundReplacesTheFormerResult)
{
    const ComponentRef agenda = Create(AgendaClass);
    Select(*agenda, {}, WholeDay());
    Select(*agenda, {.text = "ninguém com este nome"}, {});
    EXPECT_EQ(ResultOf(*agenda)->RecordCount(), 0);
}

TEST_P(Status, OfATechnicalFailureIsNotZeroAndTheFailureIsTold)
{
    TheEngine().BreakData();
    for (const char* name : Selecting) {
        const ComponentRef object = Create(name);
        const Value status = Run(name, *object);
        EXPECT_NE(status.ToInteger(), 0) << name;
        EXPECT_TRUE(status.ToBoolean()) << name;
        const Value number = object->Get("NumeroDoErro");
        EXPECT_EQ(number.GetType(), ValueType::Long) << name;
        EXPECT_NE(number.ToLong(), 0) << name;
        const Value description = object->Get("DescricaoDoErro");
        EXPECT_EQ(description.GetType(), ValueType::Text) << name;
        EXPECT_NE(description.ToText(), "") << name;
        const Value place = object->Get("LocalDoErro");
        EXPECT_EQ(place.GetType(), ValueType::Text) << name;
        EXPECT_NE(place.ToText().find(name), std::string::npos) << place.ToText();
    }
}

TEST_P(Status, IsZeroAgainWhenTheCauseIsGone)
{
    for (const char* name : Selecting) {
        const ComponentRef object = Create(name);
        TheEngine().BreakData();
        EXPECT_NE(Run(name, *object).ToLong(), 0) << name;
        TheEngine().MendData();
        EXPECT_EQ(Run(name, *object).ToLong(), 0) << name;
        EXPECT_GT(ResultOf(*object)->RecordCount(), 0) << name;
    }
}

TEST_P(Status, OfATechnicalFailureLeavesARecordSetThatWasTakenBefore)
{
    const ComponentRef agenda = Create(AgendaClass);
    Run(AgendaClass, *agenda);
    const RecordSetRef former = ResultOf(*agenda);
    TheEngine().BreakData();
    EXPECT_NE(Run(AgendaClass, *agenda).ToLong(), 0);
    EXPECT_EQ(NumbersOf(*former), WholeDay());
}

/// Engines on whose former result the screens go on after a failure.
class KeptResult : public Status { };
KOVA_OVER_ENGINES(KeptResult, EnginesWith(&EngineKind::keepsFormerResult));

TEST_P(KeptResult, StaysAfterATechnicalFailureWithItsCursor)
{
    const ComponentRef agenda = Create(AgendaClass);
    const RecordSetRef former = PagedDay(*agenda, 3);
    former->AbsolutePage(2);
    TheEngine().BreakData();
    EXPECT_NE(Run(AgendaClass, *agenda).ToLong(), 0);
    EXPECT_EQ(ResultOf(*agenda), former);
    EXPECT_EQ(ResultOf(*agenda)->AbsolutePage(), 2);
    EXPECT_EQ(NumbersOf(*Page(*agenda, 3)), (std::vector<int>{3, 4, 6}));
}

TEST_P(KeptResult, IsEmptyBeforeTheFirstSelection)
{
    EXPECT_TRUE(Create(AgendaClass)->Get("ResultadoDaSelecaoEmRecordSet").IsEmpty());
}

TEST_P(KeptResult, IsMissedByPagingBeforeTheFirstSelection)
{
    const ComponentRef agenda = Create(AgendaClass);
    EXPECT_EQ(NumberOfFailure([&] { Page(*agenda, 3); }), 91);
}

/// Engines whose every answer brings its own result, one without rows where none was given.
class ReplacedResult : public Status { };
KOVA_OVER_ENGINES(ReplacedResult, EnginesWithout(&EngineKind::keepsFormerResult));

TEST_P(ReplacedResult, IsEmptyAfterATechnicalFailure)
{
    const ComponentRef agenda = Create(AgendaClass);
    Run(AgendaClass, *agenda);
    TheEngine().BreakData();
    EXPECT_NE(Run(AgendaClass, *agenda).ToLong(), 0);
    EXPECT_EQ(ResultOf(*agenda)->RecordCount(), 0);
}

TEST_P(ReplacedResult, HasNoRowsBeforeTheFirstSelection)
{
    const ComponentRef agenda = Create(AgendaClass);
    EXPECT_EQ(ResultOf(*agenda)->RecordCount(), 0);
    EXPECT_EQ(Page(*agenda, 3)->RecordCount(), 0);
}

} // namespace kova::conformance
