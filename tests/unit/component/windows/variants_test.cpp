#include "component/windows/variants.hpp"

#include "component/windows/arrays.hpp"
#include "component/windows/held.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"
#include "tests/unit/component/windows/stranger.hpp"

#include <gtest/gtest.h>

namespace kova::component {

using kova::test::NumberOfFailure;

namespace {

Value ThereAndBack(const Value& value)
{
    Variant variant;
    Put(value, variant);
    return ValueOf(variant);
}

VARTYPE TypeOf(const Value& value)
{
    Variant variant;
    Put(value, variant);
    return variant.vt;
}

/// What a variant holds that the system has converted from a text.
Value Converted(const wchar_t* text, VARTYPE type)
{
    Variant variant;
    variant.vt = VT_BSTR;
    variant.bstrVal = ::SysAllocString(text);
    EXPECT_EQ(::VariantChangeTypeEx(&variant, &variant, LOCALE_INVARIANT, 0, type), S_OK);
    return ValueOf(variant);
}

} // namespace

TEST(Variants, HoldEveryTypeUnderTheSystemsOwn)
{
    EXPECT_EQ(TypeOf(Empty()), VT_EMPTY);
    EXPECT_EQ(TypeOf(Null()), VT_NULL);
    EXPECT_EQ(TypeOf(true), VT_BOOL);
    EXPECT_EQ(TypeOf(Integer{1}), VT_I2);
    EXPECT_EQ(TypeOf(Long{1}), VT_I4);
    EXPECT_EQ(TypeOf(1.5), VT_R8);
    EXPECT_EQ(TypeOf(""), VT_BSTR);
    EXPECT_EQ(TypeOf(ObjectRef()), VT_DISPATCH);
    EXPECT_EQ(TypeOf(std::make_shared<Array>(0, 0)), VT_ARRAY | VT_VARIANT);
}

TEST(Variants, GiveEveryValueBackAsItWas)
{
    for (const Value& value :
         {Value(), Value(Null()), Value(true), Value(false), Value(Integer{-32768}), Value(Long{2147483647}),
          Value(-0.1), Value(""), Value("Ração p/ cão: 3 × R$ 10 🐕"), Value(Text("a\0b", 3)),
          Value(ObjectRef())})
        EXPECT_EQ(ThereAndBack(value), value) << NameOf(value.GetType());
}

TEST(Variants, TakeNumbersOfOtherKindsAsTheNextLargerOne)
{
    EXPECT_EQ(Converted(L"200", VT_UI1), Value(Integer{200}));
    EXPECT_EQ(Converted(L"-5", VT_I1), Value(Integer{-5}));
    EXPECT_EQ(Converted(L"65535", VT_UI2), Value(Long{65535}));
    EXPECT_EQ(Converted(L"4000000000", VT_UI4), Value(4000000000.0));
    EXPECT_EQ(Converted(L"7", VT_UI4), Value(Long{7}));
    EXPECT_EQ(Converted(L"7", VT_I8), Value(Long{7}));
    EXPECT_EQ(Converted(L"10.25", VT_CY), Value(10.25));
    EXPECT_EQ(Converted(L"0.5", VT_R4), Value(0.5));
    EXPECT_EQ(Converted(L"1.5", VT_DECIMAL), Value(1.5));
}

TEST(Variants, TellDatesAsFormsShowThem)
{
    Variant variant;
    variant.vt = VT_DATE;
    const auto text = [&](DATE date) {
        variant.date = date;
        return ValueOf(variant).ToText();
    };
    EXPECT_EQ(text(DateOf("23/11/2026")), "23/11/2026");
    EXPECT_EQ(text(DateOf("23/11/2026 08:05:09")), "23/11/2026 08:05:09");
    EXPECT_EQ(text(DateOf("23:59:00")), "23:59:00");
    EXPECT_EQ(text(DateOf("31/12/1899")), "31/12/1899");
    EXPECT_EQ(DateOf("31/12/1899"), 1.0);
    EXPECT_EQ(NumberOfFailure([] { DateOf("31/02/2026"); }), 13);
}

TEST(Variants, FollowReferences)
{
    Variant inner;
    Put("texto", inner);
    VARIANT outer;
    outer.vt = VT_BYREF | VT_VARIANT;
    outer.pvarVal = &inner;
    EXPECT_EQ(ValueOf(outer), Value("texto"));
    SHORT number = 4;
    outer.vt = VT_BYREF | VT_I2;
    outer.piVal = &number;
    EXPECT_EQ(ValueOf(outer), Value(Integer{4}));
}

TEST(Variants, ReadAMissingArgumentAsEmptyAndRefuseWhatHasNoCounterpart)
{
    Variant variant;
    variant.vt = VT_ERROR;
    variant.scode = DISP_E_PARAMNOTFOUND;
    EXPECT_TRUE(ValueOf(variant).IsEmpty());
    variant.scode = E_FAIL;
    EXPECT_EQ(NumberOfFailure([&] { ValueOf(variant); }), 13);
}

TEST(Variants, AreStoredWithTheVariablesOwnType)
{
    SHORT number = 0;
    EXPECT_EQ(Store("12", VT_I2, &number), Value(Integer{12}));
    EXPECT_EQ(number, 12);
    EXPECT_EQ(NumberOfFailure([&] { Store(Long{70000}, VT_I2, &number); }), 6);
    EXPECT_EQ(NumberOfFailure([&] { Store("doze", VT_I2, &number); }), 13);
    EXPECT_EQ(NumberOfFailure([&] { Store(Null(), VT_I2, &number); }), 94);
    EXPECT_EQ(number, 12);
    BYTE small = 1;
    EXPECT_EQ(NumberOfFailure([&] { Store(Long{256}, VT_UI1, &small); }), 6);
    VARIANT_BOOL truth = VARIANT_FALSE;
    EXPECT_EQ(Store(Long{3}, VT_BOOL, &truth), Value(true));
    EXPECT_EQ(truth, VARIANT_TRUE);
    DATE date = 0;
    EXPECT_EQ(Store("31/12/1899", VT_DATE, &date), Value("31/12/1899"));
    EXPECT_EQ(date, 1.0);
    CY amount = {};
    EXPECT_EQ(Store("2,5", VT_CY, &amount), Value(2.5));
    BSTR text = ::SysAllocString(L"antes");
    EXPECT_EQ(Store(Long{5}, VT_BSTR, &text), Value("5"));
    EXPECT_STREQ(text, L"5");
    ::SysFreeString(text);
}

TEST(Variants, LetGoOfTheObjectThatAVariableHeldBefore)
{
    IDispatch* variable = Held<IDispatch>(new test::Stranger({})).Release();
    EXPECT_EQ(test::Stranger::alive, 1);
    EXPECT_EQ(NumberOfFailure([&] { Store(Empty(), VT_DISPATCH, &variable); }), 91);
    EXPECT_EQ(test::Stranger::alive, 1);
    Store(ObjectRef(), VT_DISPATCH, &variable);
    EXPECT_EQ(variable, nullptr);
    EXPECT_EQ(test::Stranger::alive, 0);
}

TEST(Variants, HoldTablesWithAllTheirElements)
{
    auto table = std::make_shared<Array>(1, 2);
    table->At(0, 0) = "primeiro";
    table->At(1, 2) = Long{6};
    table->At(1, 0) = Null();
    const ArrayRef back = ThereAndBack(table).ToArray();
    ASSERT_EQ(back->UpperBound(1), 1);
    ASSERT_EQ(back->UpperBound(2), 2);
    for (Long first = 0; first <= 1; ++first)
        for (Long second = 0; second <= 2; ++second)
            EXPECT_EQ(back->At(first, second), table->At(first, second)) << first << ',' << second;
}

TEST(Variants, KeepTheIndexesOfTablesThatAreCountedFromOne)
{
    SAFEARRAYBOUND bounds[2] = {{2, 1}, {2, 1}};
    Variant variant;
    variant.vt = VT_ARRAY | VT_I4;
    variant.parray = ::SafeArrayCreate(VT_I4, 2, bounds);
    LONG at[2] = {2, 1};
    LONG value = 21;
    ASSERT_EQ(::SafeArrayPutElement(variant.parray, at, &value), S_OK);
    const ArrayRef table = ValueOf(variant).ToArray();
    EXPECT_EQ(table->UpperBound(1), 2);
    EXPECT_EQ(table->At(2, 1), Value(Long{21}));
    EXPECT_TRUE(table->At(0, 0).IsEmpty());
    EXPECT_EQ(table->At(1, 1), Value(Long{0}));
}

TEST(Variants, RefuseArraysOfOneDimension)
{
    Variant variant;
    variant.vt = VT_ARRAY | VT_VARIANT;
    variant.parray = ::SafeArrayCreateVector(VT_VARIANT, 0, 3);
    EXPECT_EQ(NumberOfFailure([&] { ValueOf(variant); }), 13);
}

} // namespace kova::component
