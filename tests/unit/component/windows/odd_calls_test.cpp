// What other programs may hand over without being asked: nothing of it takes their process down.

#include "component/windows/arrays.hpp"
#include "component/windows/dispatch.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"
#include "tests/unit/component/windows/seen_from_outside.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>
#include <thread>

namespace kova::component {

using kova::test::NumberOfFailure;
using test::Plain;
using test::Reference;
using test::SeenFromOutside;

namespace {

/// Ends as its member is called.
class Thrower : public Component {
public:
    Value Get(std::string_view) override { throw Failure(FailureNumber::NoSuchMember); }
    void Set(std::string_view, const Value&) override { throw Failure(FailureNumber::NoSuchMember); }
    using Component::Call;
    Value Call(std::string_view member, std::span<Argument>) override
    {
        if (member == "Memória")
            throw std::bad_alloc();
        if (member == "Tamanho")
            throw std::length_error("too long");
        if (member == "Biblioteca")
            throw std::runtime_error("unforeseen");
        if (member == "Número")
            throw 7;
        throw Failure(0, "sem número");
    }
};

VARIANT Missing()
{
    VARIANT missing;
    missing.vt = VT_ERROR;
    missing.scode = DISP_E_PARAMNOTFOUND;
    return missing;
}

SAFEARRAY* TableFrom(LONG lower)
{
    SAFEARRAYBOUND bounds[2] = {{1, lower}, {1, lower}};
    return ::SafeArrayCreate(VT_VARIANT, 2, bounds);
}

} // namespace

TEST_F(SeenFromOutside, AskedForNoNameAnswersSo)
{
    wchar_t* none = nullptr;
    DISPID id = 5;
    EXPECT_EQ(seen->GetIDsOfNames(IID_NULL, &none, 1, LOCALE_USER_DEFAULT, &id), E_INVALIDARG);
    wchar_t nothing[] = L"";
    wchar_t* empty = nothing;
    EXPECT_EQ(seen->GetIDsOfNames(IID_NULL, &empty, 1, LOCALE_USER_DEFAULT, &id), DISP_E_UNKNOWNNAME);
}

TEST_F(SeenFromOutside, ArgumentsHaveNoNames)
{
    wchar_t member[] = L"Contar";
    wchar_t argument[] = L"primeiro";
    wchar_t* names[] = {member, argument};
    DISPID ids[2] = {};
    EXPECT_EQ(seen->GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids), DISP_E_UNKNOWNNAME);
    EXPECT_GT(ids[0], 0);
    EXPECT_EQ(ids[1], DISPID_UNKNOWN);
    VARIANT passed = Plain(Long{1});
    DISPID named = 0;
    DISPPARAMS parameters = {&passed, &named, 1, 1};
    EXPECT_EQ(seen->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
              DISP_E_NONAMEDARGS);
}

TEST_F(SeenFromOutside, NamesAreLookedUpInItsOwnThreadToo)
{
    HRESULT status = S_OK;
    HRESULT listed = S_OK;
    std::thread([&] {
        wchar_t name[] = L"Contar";
        wchar_t* asked = name;
        DISPID id = 0;
        status = seen->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
        const OwnBstr text("Contar");
        listed = seen.As<IDispatchEx>(ListingId)->GetDispID(text.Get(), 0, &id);
    }).join();
    EXPECT_EQ(status, RPC_E_WRONG_THREAD);
    EXPECT_EQ(listed, RPC_E_WRONG_THREAD);
}

TEST_F(SeenFromOutside, EveryKindOfFailureComesAsAnException)
{
    const auto thrower = DispatchOf(std::make_shared<Thrower>());
    const auto codeOf = [&](const wchar_t* member) {
        EXPECT_EQ(Invoke(thrower, member, DISPATCH_METHOD), DISP_E_EXCEPTION);
        EXPECT_NE(::SysStringLen(exception.bstrDescription), 0U);
        return exception.scode;
    };
    EXPECT_EQ(codeOf(L"Memória"), static_cast<SCODE>(0x800A0000 + 7));
    EXPECT_EQ(codeOf(L"Tamanho"), static_cast<SCODE>(0x800A0000 + 7));
    EXPECT_EQ(codeOf(L"Biblioteca"), static_cast<SCODE>(0x800A0000 + 5));
    EXPECT_EQ(codeOf(L"Número"), static_cast<SCODE>(0x800A0000 + 5));
    EXPECT_EQ(codeOf(L"Nada"), E_FAIL);
}

TEST_F(SeenFromOutside, WhatWasLeftOutInAVariableWasNotGiven)
{
    // As a program does that hands its own optional argument on.
    VARIANT variable = Missing();
    Call(L"Contar", {Plain(Long{1}), Reference(VT_VARIANT, &variable)});
    EXPECT_EQ(ValueOf(answer), Value(Long{1}));
}

TEST_F(SeenFromOutside, VariablesThatReferToVariablesAreWrittenWhereTheyEnd)
{
    SHORT number = 1;
    VARIANT inner = Reference(VT_I2, &number);
    VARIANT middle = Reference(VT_VARIANT, &inner);
    EXPECT_EQ(Call(L"Escrever", {Reference(VT_VARIANT, &middle), Plain("56")}), S_OK);
    EXPECT_EQ(number, 56);
    EXPECT_EQ(middle.vt, VT_BYREF | VT_VARIANT);

    Variant any;
    middle = Reference<VARIANT>(VT_VARIANT, &any);
    EXPECT_EQ(Call(L"Escrever", {Reference(VT_VARIANT, &middle), Plain("tosa")}), S_OK);
    EXPECT_EQ(ValueOf(any), Value("tosa"));
    EXPECT_EQ(middle.vt, VT_BYREF | VT_VARIANT);

    EXPECT_EQ(Call(L"Preencher", {Reference(VT_VARIANT, &middle)}), DISP_E_EXCEPTION) << "it is a text";
    ::VariantClear(&any);
    Put(std::make_shared<Array>(0, 0), any);
    EXPECT_EQ(Call(L"Preencher", {Reference(VT_VARIANT, &middle)}), S_OK);
    EXPECT_EQ(ValueOf(any).ToArray()->At(0, 0), Value(Long{7}));
}

TEST_F(SeenFromOutside, AVariableThatRefersToItselfIsRefused)
{
    VARIANT self;
    self.vt = VT_BYREF | VT_VARIANT;
    self.pvarVal = &self;
    EXPECT_EQ(Call(L"Devolver", {self}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 13);
}

TEST_F(SeenFromOutside, AReferenceToNothingIsRefused)
{
    for (const VARTYPE type : {VT_I4, VT_BSTR, VT_VARIANT, VT_DISPATCH, VT_DECIMAL}) {
        EXPECT_EQ(Call(L"Devolver", {Reference<void>(type, nullptr)}), DISP_E_EXCEPTION) << type;
        EXPECT_EQ(exception.scode & 0xFFFF, 13);
    }
    SAFEARRAY* none = nullptr;
    EXPECT_EQ(Call(L"Devolver", {Reference(VT_ARRAY | VT_VARIANT, &none)}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 13);
    EXPECT_EQ(Call(L"Devolver", {Reference<SAFEARRAY*>(VT_ARRAY | VT_VARIANT, nullptr)}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 13);
}

TEST_F(SeenFromOutside, ANullTextIsAnEmptyOne)
{
    VARIANT text;
    text.vt = VT_BSTR;
    text.bstrVal = nullptr;
    EXPECT_EQ(Invoke(seen, L"Conteúdo", DISPATCH_PROPERTYPUT, {text}), S_OK);
    EXPECT_EQ(vault->held, Value(""));
    BSTR variable = nullptr;
    EXPECT_EQ(Call(L"Escrever", {Reference(VT_BSTR, &variable), Plain("ração")}), S_OK);
    EXPECT_STREQ(variable, L"ração");
    ::SysFreeString(variable);
}

TEST_F(SeenFromOutside, EveryKindOfNumberIsWrittenByReference)
{
    const auto write = [&](VARTYPE type, void* variable, const Value& value) {
        return Call(L"Escrever", {Reference(type, variable), Plain(value)});
    };
    LONGLONG largest = 0;
    EXPECT_EQ(write(VT_I8, &largest, 4000000000.0), S_OK);
    EXPECT_EQ(largest, 4000000000LL);
    ULONG large = 0;
    EXPECT_EQ(write(VT_UI4, &large, 4000000000.0), S_OK);
    EXPECT_EQ(large, 4000000000UL);
    EXPECT_EQ(write(VT_UI4, &large, Long{-1}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 6);
    EXPECT_EQ(large, 4000000000UL);
    USHORT middle = 0;
    EXPECT_EQ(write(VT_UI2, &middle, Long{65535}), S_OK);
    EXPECT_EQ(middle, 65535);
    signed char small = 0;
    EXPECT_EQ(write(VT_I1, &small, "-5"), S_OK);
    EXPECT_EQ(small, -5);
    DECIMAL amount = {};
    EXPECT_EQ(write(VT_DECIMAL, &amount, "2,5"), S_OK);
    EXPECT_EQ(ValueOf(Reference(VT_DECIMAL, &amount)), Value(2.5));
    CY currency = {};
    EXPECT_EQ(write(VT_CY, &currency, 1e300), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 6);
}

TEST_F(SeenFromOutside, AnObjectIsWrittenIntoAVariableOfAnyInterface)
{
    IUnknown* variable = nullptr;
    EXPECT_EQ(Call(L"Escrever", {Reference(VT_UNKNOWN, &variable), Plain(vault)}), S_OK);
    EXPECT_EQ(variable, static_cast<IUnknown*>(seen.Get()));
    EXPECT_EQ(Call(L"Escrever", {Reference(VT_UNKNOWN, &variable), Plain(ObjectRef())}), S_OK);
    EXPECT_EQ(variable, nullptr);
}

TEST_F(SeenFromOutside, ATableIsCountedFromWhereItsProgramCounts)
{
    for (const LONG lower : {0, 1, 5}) {
        SAFEARRAY* table = TableFrom(lower);
        EXPECT_EQ(Call(L"Devolver", {Reference(VT_ARRAY | VT_VARIANT, &table)}), S_OK);
        EXPECT_EQ(ValueOf(answer).ToArray()->UpperBound(1), lower);
        ::SafeArrayDestroy(table);
    }
    SAFEARRAY* below = TableFrom(-1);
    EXPECT_EQ(Call(L"Devolver", {Reference(VT_ARRAY | VT_VARIANT, &below)}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 9);
    ::SafeArrayDestroy(below);
    SAFEARRAY* distant = TableFrom(std::numeric_limits<LONG>::max() - 1);
    EXPECT_EQ(Call(L"Devolver", {Reference(VT_ARRAY | VT_VARIANT, &distant)}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 7);
    ::SafeArrayDestroy(distant);
}

TEST_F(SeenFromOutside, ALargeTableGoesThereAndBack)
{
    SAFEARRAYBOUND bounds[2] = {{1000, 0}, {200, 0}};
    SAFEARRAY* table = ::SafeArrayCreate(VT_I4, 2, bounds);
    LONG at[2] = {999, 199};
    LONG number = 12;
    ::SafeArrayPutElement(table, at, &number);
    EXPECT_EQ(Call(L"Preencher", {Reference(VT_ARRAY | VT_I4, &table)}), S_OK);
    EXPECT_EQ(ArrayOf(table)->At(999, 199), Value(Long{12}));
    EXPECT_EQ(ArrayOf(table)->At(0, 0), Value(Long{7}));
    ::SafeArrayDestroy(table);
}

TEST_F(SeenFromOutside, ATableThatIsLockedIsWrittenInItsPlace)
{
    SAFEARRAY* table = TableFrom(0);
    ASSERT_EQ(::SafeArrayLock(table), S_OK);
    EXPECT_EQ(Call(L"Preencher", {Reference(VT_ARRAY | VT_VARIANT, &table)}), S_OK);
    EXPECT_EQ(ArrayOf(table)->At(0, 0), Value(Long{7}));
    ::SafeArrayUnlock(table);
    ::SafeArrayDestroy(table);
}

TEST_F(SeenFromOutside, DatesOfEveryDayAreTold)
{
    const auto told = [&](DATE date) {
        VARIANT variant;
        variant.vt = VT_DATE;
        variant.date = date;
        return ValueOf(variant).ToText();
    };
    EXPECT_EQ(told(-1.25), "29/12/1899 06:00:00");
    EXPECT_EQ(told(0.25), "06:00:00");
    EXPECT_EQ(told(0), "00:00:00") << "midnight, which is what times are counted from";
    EXPECT_EQ(told(-657434), "01/01/0100");
    EXPECT_EQ(told(2958465.5), "31/12/9999 12:00:00");
    EXPECT_EQ(DateOf("29/12/1899 06:00:00"), -1.25);
    EXPECT_EQ(DateOf("01/01/0100"), -657434);
    for (const DATE outside : {-657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()})
        EXPECT_EQ(NumberOfFailure([&] { told(outside); }), 13) << outside;
}

TEST_F(SeenFromOutside, AmountsOfEverySizeAreTold)
{
    VARIANT variant;
    variant.vt = VT_CY;
    variant.cyVal.int64 = -1;
    EXPECT_EQ(ValueOf(variant), Value(-0.0001));
    variant.cyVal.int64 = std::numeric_limits<LONGLONG>::max();
    EXPECT_EQ(ValueOf(variant), Value(922337203685477.5807));
    DECIMAL decimal = {};
    decimal.scale = 28;
    decimal.sign = DECIMAL_NEG;
    decimal.Lo64 = 1;
    EXPECT_DOUBLE_EQ(ValueOf(Reference(VT_DECIMAL, &decimal)).ToDouble(), -1e-28);
}

TEST_F(SeenFromOutside, ManyThreadsMayHoldIt)
{
    const auto hold = [&] {
        for (int turn = 0; turn < 20000; ++turn)
            const Held<IDispatch> again(seen);
    };
    std::thread first(hold);
    std::thread second(hold);
    first.join();
    second.join();
    seen.Get()->AddRef();
    EXPECT_EQ(seen.Get()->Release(), 1U);
}

} // namespace kova::component
