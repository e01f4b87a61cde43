// A record set by the member names that it has everywhere.

#include "agenda/contracts/support/memory_record_set.hpp"
#include "component/record_set_component.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>

namespace kova::component {

using kova::test::NumberOfFailure;

namespace {

class RecordSetByNames : public testing::Test {
protected:
    Value Cell(const Value& nameOrNumber)
    {
        return component.Call("Fields", {nameOrNumber}).ToObject<Component>()->Get("Value");
    }

    RecordSetRef records = std::make_shared<MemoryRecordSet>(
        std::vector<Text>{"Codigo", "Descrição"},
        std::vector<std::vector<Value>>{{Long{2}, "banho"}, {Long{1}, "tosa"}, {Long{3}, Null()}});
    RecordSetComponent component{records};
};

TEST_F(RecordSetByNames, TellsTheFieldsOfTheCurrentRowByNameAndByNumber)
{
    EXPECT_EQ(Cell("codigo"), Value(Long{2}));
    EXPECT_EQ(Cell("DESCRIÇÃO"), Value("banho"));
    EXPECT_EQ(Cell(Integer{1}), Value("banho"));
    const auto field = component.Call("Fields", {"Codigo"}).ToObject<Component>();
    component.Call("MoveNext");
    EXPECT_EQ(field->Get("Value"), Value(Long{1}));
    EXPECT_EQ(field->Get("Name"), Value("Codigo"));
}

TEST_F(RecordSetByNames, FailsWhereThereIsNoSuchFieldAndNoCurrentRow)
{
    EXPECT_EQ(NumberOfFailure([&] { Cell("Preço"); }), 3265);
    EXPECT_EQ(NumberOfFailure([&] { Cell(Long{2}); }), 3265);
    records->MoveLast();
    records->MoveNext();
    EXPECT_EQ(NumberOfFailure([&] { Cell("Codigo"); }), 3021);
}

TEST_F(RecordSetByNames, ListsItsFields)
{
    const auto fields = component.Call("Fields").ToObject<Component>();
    EXPECT_EQ(fields->Get("Count"), Value(Long{2}));
    EXPECT_EQ(fields->Call("Item", {Long{1}}).ToObject<Component>()->Get("Name"), Value("Descrição"));
}

TEST_F(RecordSetByNames, MovesSortsAndPagesTheRecordSetItself)
{
    component.Set("Sort", "Codigo DESC");
    EXPECT_EQ(component.Get("Sort"), Value("Codigo DESC"));
    EXPECT_EQ(Cell("Codigo"), Value(Long{3}));
    component.Call("MoveLast");
    EXPECT_EQ(component.Get("AbsolutePosition"), Value(Long{3}));
    component.Call("MovePrevious");
    component.Call("MoveFirst");
    EXPECT_EQ(component.Get("BOF"), Value(false));
    component.Set("PageSize", Long{2});
    component.Set("AbsolutePage", Long{2});
    EXPECT_EQ(component.Get("PageCount"), Value(Long{2}));
    EXPECT_EQ(component.Get("AbsolutePage"), Value(Long{2}));
    EXPECT_EQ(component.Get("PageSize"), Value(Long{2}));
    component.Call("MoveNext");
    EXPECT_EQ(component.Get("EOF"), Value(true));
    EXPECT_EQ(component.Get("RecordCount"), Value(Long{3}));
}

} // namespace

} // namespace kova::component
