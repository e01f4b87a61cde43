#include "agenda/contracts/value.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>
#include <limits>

namespace kova {

using test::NumberOfFailure;

namespace {

class Thing : public Object { };
class OtherThing : public Object { };

const Value AnObject = std::make_shared<Thing>();
const Value AnArray = std::make_shared<Array>(0, 0);

/// A value and what each conversion makes of it.
struct Reading {
    Value value;
    bool boolean;
    Long number;
    Double fraction;
    Text text;
};

} // namespace

TEST(Value, ReadsAsEveryTypeItCanBeReadAs)
{
    const Reading readings[] = {
        {Empty(), false, 0, 0, ""},
        {true, true, -1, -1, "Verdadeiro"},
        {false, false, 0, 0, "Falso"},
        {Integer(-7), true, -7, -7, "-7"},
        {Long(70000), true, 70000, 70000, "70000"},
        {2.5, true, 2, 2.5, "2,5"},
        {3.5, true, 4, 3.5, "3,5"},
        {-2.5, true, -2, -2.5, "-2,5"},
        {0.4, true, 0, 0.4, "0,4"},
        {" 12 ", true, 12, 12, " 12 "},
        {"1,5", true, 2, 1.5, "1,5"},
        {"1.5", true, 2, 1.5, "1.5"},
        {"-3e2", true, -300, -300, "-3e2"},
        {"0", false, 0, 0, "0"},
    };
    for (const Reading& reading : readings) {
        SCOPED_TRACE(reading.text + " as " + std::string(NameOf(reading.value.GetType())));
        EXPECT_EQ(reading.value.ToBoolean(), reading.boolean);
        EXPECT_EQ(reading.value.ToLong(), reading.number);
        EXPECT_DOUBLE_EQ(reading.value.ToDouble(), reading.fraction);
        EXPECT_EQ(reading.value.ToText(), reading.text);
    }
}

TEST(Value, ReadsTheWordsOfTruthWithoutRegardToCase)
{
    EXPECT_TRUE(Value("VERDADEIRO").ToBoolean());
    EXPECT_TRUE(Value("true").ToBoolean());
    EXPECT_FALSE(Value("Falso").ToBoolean());
    EXPECT_EQ(NumberOfFailure([] { Value("sim").ToBoolean(); }), 13);
}

TEST(Value, RefusesNullInEveryConversion)
{
    const Value null = Null();
    EXPECT_EQ(NumberOfFailure([&] { null.ToBoolean(); }), 94);
    EXPECT_EQ(NumberOfFailure([&] { null.ToInteger(); }), 94);
    EXPECT_EQ(NumberOfFailure([&] { null.ToLong(); }), 94);
    EXPECT_EQ(NumberOfFailure([&] { null.ToDouble(); }), 94);
    EXPECT_EQ(NumberOfFailure([&] { null.ToText(); }), 94);
    EXPECT_EQ(NumberOfFailure([&] { null.ToObject(); }), 94);
}

TEST(Value, RefusesWhatIsNoNumber)
{
    for (const char* text : {"", " ", "dez", "12x", "1.2.3", "1 2", "--1", "."}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(NumberOfFailure([&] { Value(text).ToLong(); }), 13);
        EXPECT_EQ(NumberOfFailure([&] { Value(text).ToDouble(); }), 13);
    }
    for (const Value& value : {AnObject, AnArray}) {
        EXPECT_EQ(NumberOfFailure([&] { value.ToBoolean(); }), 13);
        EXPECT_EQ(NumberOfFailure([&] { value.ToInteger(); }), 13);
        EXPECT_EQ(NumberOfFailure([&] { value.ToDouble(); }), 13);
        EXPECT_EQ(NumberOfFailure([&] { value.ToText(); }), 13);
    }
}

TEST(Value, OverflowsOutsideSixteenBitsInsteadOfWrapping)
{
    EXPECT_EQ(Value(Long(32767)).ToInteger(), 32767);
    EXPECT_EQ(Value(Long(-32768)).ToInteger(), -32768);
    EXPECT_EQ(Value(32767.4).ToInteger(), 32767);
    for (const Value& value : {Value(Long(32768)), Value(Long(-32769)), Value(32767.5), Value("40000")})
        EXPECT_EQ(NumberOfFailure([&] { value.ToInteger(); }), 6);
}

TEST(Value, OverflowsOutsideThirtyTwoBits)
{
    EXPECT_EQ(Value(2147483647.0).ToLong(), 2147483647);
    EXPECT_EQ(Value(-2147483648.0).ToLong(), std::numeric_limits<Long>::min());
    for (const Value& value : {Value(2147483647.5), Value(-2147483649.0), Value("1e10"),
                               Value(std::numeric_limits<Double>::quiet_NaN())})
        EXPECT_EQ(NumberOfFailure([&] { value.ToLong(); }), 6);
}

TEST(Value, RemembersItsType)
{
    EXPECT_EQ(Value().GetType(), ValueType::Empty);
    EXPECT_EQ(Value(Null()).GetType(), ValueType::Null);
    EXPECT_EQ(Value(true).GetType(), ValueType::Boolean);
    EXPECT_EQ(Value(Integer(1)).GetType(), ValueType::Integer);
    EXPECT_EQ(Value(Long(1)).GetType(), ValueType::Long);
    EXPECT_EQ(Value(1.0).GetType(), ValueType::Double);
    EXPECT_EQ(Value("1").GetType(), ValueType::Text);
    EXPECT_EQ(AnObject.GetType(), ValueType::Object);
    EXPECT_EQ(AnArray.GetType(), ValueType::Array);
    EXPECT_FALSE(Value(Integer(1)) == Value(Long(1)));
}

TEST(Value, NamesItsTypes)
{
    EXPECT_EQ(NameOf(ValueType::Empty), "Empty");
    EXPECT_EQ(NameOf(ValueType::Integer), "Integer");
    EXPECT_EQ(NameOf(ValueType::Array), "Array");
}

TEST(Value, HandsOutItsObjectAsTheRightClassOnly)
{
    EXPECT_EQ(AnObject.ToObject(), AnObject.ToObject<Thing>());
    EXPECT_EQ(NumberOfFailure([] { AnObject.ToObject<OtherThing>(); }), 13);
    EXPECT_EQ(NumberOfFailure([] { Value("texto").ToObject(); }), 13);
    EXPECT_EQ(NumberOfFailure([] { Value().ToObject(); }), 91);
    EXPECT_EQ(NumberOfFailure([] { Value(ObjectRef()).ToObject(); }), 91);
}

TEST(Value, HandsOutItsArrayOnly)
{
    EXPECT_NE(AnArray.ToArray(), nullptr);
    EXPECT_EQ(NumberOfFailure([] { Value(Long(1)).ToArray(); }), 13);
    EXPECT_EQ(NumberOfFailure([] { Value(ArrayRef()).ToArray(); }), 13);
}

TEST(Array, KeepsEachElementInItsOwnPlace)
{
    Array array(2, 1);
    for (Long first = 0; first <= 2; ++first)
        for (Long second = 0; second <= 1; ++second)
            array.At(first, second) = Long(10 * first + second);
    EXPECT_EQ(array.At(0, 1).ToLong(), 1);
    EXPECT_EQ(array.At(1, 0).ToLong(), 10);
    EXPECT_EQ(array.At(2, 1).ToLong(), 21);
    EXPECT_EQ(array.UpperBound(1), 2);
    EXPECT_EQ(array.UpperBound(2), 1);
}

TEST(Array, StartsEmpty) { EXPECT_TRUE(Array(3, 3).At(3, 3).IsEmpty()); }

TEST(Array, FailsOutsideItsBounds)
{
    Array array(2, 1);
    EXPECT_EQ(NumberOfFailure([&] { array.At(3, 0); }), 9);
    EXPECT_EQ(NumberOfFailure([&] { array.At(0, 2); }), 9);
    EXPECT_EQ(NumberOfFailure([&] { array.At(-1, 0); }), 9);
    EXPECT_EQ(NumberOfFailure([&] { array.UpperBound(0); }), 9);
    EXPECT_EQ(NumberOfFailure([&] { array.UpperBound(3); }), 9);
    EXPECT_EQ(NumberOfFailure([] { Array(-1, 0); }), 9);
}

} // namespace kova
