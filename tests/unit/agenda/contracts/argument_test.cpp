#include "agenda/contracts/business_services.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>

namespace kova {

using test::NumberOfFailure;

namespace {

class Thing : public Object { };

} // namespace

TEST(Argument, ByValueChangesNothingForTheCaller)
{
    Long variable = 4;
    Argument argument = variable;
    EXPECT_FALSE(argument.IsByReference());
    argument.Assign(Long(9));
    EXPECT_EQ(variable, 4);
    EXPECT_EQ(argument.Get(), Value(Long(9)));
}

TEST(Argument, ByReferenceCarriesTheVariablesType)
{
    Integer integer = 1;
    Long number = 2;
    Double fraction = 3;
    Text text = "4";
    ObjectRef object;
    Value any = Null();
    EXPECT_EQ(ByRef(integer).Get().GetType(), ValueType::Integer);
    EXPECT_EQ(ByRef(number).Get().GetType(), ValueType::Long);
    EXPECT_EQ(ByRef(fraction).Get().GetType(), ValueType::Double);
    EXPECT_EQ(ByRef(text).Get().GetType(), ValueType::Text);
    EXPECT_EQ(ByRef(object).Get().GetType(), ValueType::Object);
    EXPECT_TRUE(ByRef(any).Get().IsNull());
    EXPECT_TRUE(ByRef(any).IsByReference());
    EXPECT_TRUE(ByRef(any).TakesEveryType());
    EXPECT_FALSE(ByRef(number).TakesEveryType());
}

TEST(Argument, ByReferenceConvertsToTheVariablesType)
{
    Integer integer = 0;
    Long number = 0;
    Double fraction = 0;
    Text text;
    Value any;
    ByRef(integer).Assign("12");
    ByRef(number).Assign(2.5);
    ByRef(fraction).Assign("1,5");
    ByRef(text).Assign(Long(7));
    ByRef(any).Assign(Null());
    EXPECT_EQ(integer, 12);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(fraction, 1.5);
    EXPECT_EQ(text, "7");
    EXPECT_TRUE(any.IsNull());
}

TEST(Argument, ReadsAsTheVariableAfterAnAssignment)
{
    Integer integer = 0;
    Argument argument = ByRef(integer);
    argument.Assign("12");
    EXPECT_EQ(argument.Get(), Value(Integer(12)));
}

TEST(Argument, LeavesTheVariableWhereTheValueCannotBeConverted)
{
    Integer integer = 5;
    Text text = "antes";
    EXPECT_EQ(NumberOfFailure([&] { ByRef(integer).Assign(Long(40000)); }), 6);
    EXPECT_EQ(NumberOfFailure([&] { ByRef(integer).Assign("doze"); }), 13);
    EXPECT_EQ(NumberOfFailure([&] { ByRef(text).Assign(Null()); }), 94);
    EXPECT_EQ(integer, 5);
    EXPECT_EQ(text, "antes");
}

TEST(Argument, TakesAnObjectOrADroppedReferenceIntoAnObjectVariable)
{
    const auto thing = std::make_shared<Thing>();
    ObjectRef variable;
    ByRef(variable).Assign(thing);
    EXPECT_EQ(variable, thing);
    EXPECT_EQ(NumberOfFailure([&] { ByRef(variable).Assign("texto"); }), 13);
    EXPECT_EQ(NumberOfFailure([&] { ByRef(variable).Assign(Value()); }), 91);
    EXPECT_EQ(variable, thing);
    ByRef(variable).Assign(ObjectRef());
    EXPECT_EQ(variable, nullptr);
}

} // namespace kova
