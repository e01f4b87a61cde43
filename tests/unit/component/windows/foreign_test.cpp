// Objects of other makers as we see them.

#include "component/windows/foreign.hpp"

#include "component/windows/failures.hpp"
#include "component/windows/objects.hpp"
#include "tests/unit/component/windows/stranger.hpp"
#include "tests/unit/component/windows/vault.hpp"

#include <gtest/gtest.h>

#include <thread>

namespace kova::component {

using test::Stranger;

namespace {

ComponentRef Seen(std::map<std::wstring, Stranger::Act> members)
{
    return std::dynamic_pointer_cast<Component>(ObjectOf(Held<IDispatch>(new Stranger(members)).Get()));
}

Failure FailureIn(const std::function<void()>& act)
{
    try {
        act();
    } catch (const Failure& failure) {
        return failure;
    }
    return {0, "nothing failed"};
}

/// A member that fails as the system's objects do.
Stranger::Act Raising(HRESULT scode, WORD code, const wchar_t* text)
{
    return [=](const Stranger::Call& call) {
        call.exception.scode = scode;
        call.exception.wCode = code;
        call.exception.bstrDescription = ::SysAllocString(text);
        return DISP_E_EXCEPTION;
    };
}

} // namespace

TEST(ForeignObject, IsReadWrittenAndCalledByNames)
{
    Value name = "Ana";
    const ComponentRef user = Seen({
        {L"Nome",
         [&](const Stranger::Call& call) {
             if ((call.flags & DISPATCH_PROPERTYPUT) != 0)
                 name = ValueOf(call.parameters.rgvarg[0]);
             else
                 Put(name, call.answer);
             return S_OK;
         }},
        {L"Menos",
         [](const Stranger::Call& call) {
             // The last argument comes first.
             Put(ValueOf(call.parameters.rgvarg[1]).ToLong() - ValueOf(call.parameters.rgvarg[0]).ToLong(),
                 call.answer);
             return S_OK;
         }},
    });
    EXPECT_EQ(user->Get("nome"), Value("Ana"));
    user->Set("Nome", "José");
    EXPECT_EQ(user->Get("Nome"), Value("José"));
    EXPECT_EQ(user->Call("Menos", {Long{5}, Integer{3}}), Value(Long{2}));
    EXPECT_TRUE(user->Members().empty());
}

TEST(ForeignObject, IsAskedInTheOneWayThatItTakes)
{
    const auto takingOnly = [](WORD flags) {
        return [flags](const Stranger::Call& call) {
            Put(Long(call.parameters.cArgs), call.answer);
            return call.flags == flags ? S_OK : DISP_E_MEMBERNOTFOUND;
        };
    };
    // A property, a function, and a property with arguments.
    const ComponentRef strict = Seen({{L"Nome", takingOnly(DISPATCH_PROPERTYGET)},
                                      {L"Idade", takingOnly(DISPATCH_METHOD)},
                                      {L"Item", takingOnly(DISPATCH_PROPERTYGET)}});
    EXPECT_EQ(strict->Get("Nome"), Value(Long{0}));
    EXPECT_EQ(strict->Get("Idade"), Value(Long{0}));
    EXPECT_EQ(strict->Call("Idade"), Value(Long{0}));
    EXPECT_EQ(strict->Call("Item", {Long{1}}), Value(Long{1}));
}

TEST(ForeignObject, IsGivenObjectsByReferenceOrAsItTakesThem)
{
    WORD taken = 0;
    const auto taking = [&](WORD flag) {
        return [&taken, flag](const Stranger::Call& call) {
            taken = call.flags;
            return call.flags == flag ? S_OK : DISP_E_MEMBERNOTFOUND;
        };
    };
    const ComponentRef user =
        Seen({{L"Dono", taking(DISPATCH_PROPERTYPUTREF)}, {L"Chefe", taking(DISPATCH_PROPERTYPUT)}});
    user->Set("Dono", std::make_shared<test::Vault>());
    EXPECT_EQ(taken, DISPATCH_PROPERTYPUTREF);
    user->Set("Chefe", std::make_shared<test::Vault>());
    EXPECT_EQ(taken, DISPATCH_PROPERTYPUT);
    EXPECT_EQ(SeenObjects(), 0);
}

TEST(ForeignObject, WritesOurVariables)
{
    std::vector<VARTYPE> types;
    const ComponentRef writer = Seen({{L"Escrever", [&](const Stranger::Call& call) {
                                           for (UINT at = call.parameters.cArgs; at-- > 0;)
                                               types.push_back(call.parameters.rgvarg[at].vt);
                                           *call.parameters.rgvarg[1].plVal = 8;
                                           Store("oito", VT_VARIANT, call.parameters.rgvarg[0].pvarVal);
                                           return S_OK;
                                       }}});
    Long number = 1;
    Value any = Long{2};
    writer->Call("Escrever", {Text("valor"), ByRef(number), ByRef(any)});
    EXPECT_EQ(number, 8);
    EXPECT_EQ(any, Value("oito"));
    EXPECT_EQ(types, (std::vector<VARTYPE>{VT_BSTR, VT_BYREF | VT_I4, VT_BYREF | VT_VARIANT}));
}

TEST(ForeignObject, WritesTheElementsOfOurArrays)
{
    const ComponentRef writer =
        Seen({{L"Preencher", [](const Stranger::Call& call) {
                   LONG at[2] = {1, 0};
                   Variant element;
                   Put("cheio", element);
                   return ::SafeArrayPutElement(call.parameters.rgvarg[0].pvarVal->parray, at, &element);
               }}});
    const auto table = std::make_shared<Array>(1, 1);
    Value variable = table;
    writer->Call("Preencher", {ByRef(variable)});
    EXPECT_EQ(table->At(1, 0), Value("cheio"));
    EXPECT_EQ(variable.ToArray(), table);
}

TEST(ForeignObject, FailuresKeepTheirNumberAndText)
{
    const ComponentRef failing = Seen({
        {L"A", Raising(static_cast<HRESULT>(0x800A0000 + 91), 0, L"Sem objeto à mão")},
        {L"B", Raising(0, 1004, L"Erro do aplicativo")},
        {L"C", Raising(static_cast<HRESULT>(0x80040E21), 0, L"O valor não cabe")},
        {L"D", [](const Stranger::Call&) { return DISP_E_TYPEMISMATCH; }},
        {L"E", Raising(static_cast<HRESULT>(0x800A0000 + 11), 0, nullptr)},
        {L"F", [](const Stranger::Call&) { return DISP_E_BADPARAMCOUNT; }},
        {L"G", Raising(0, 0, L"Sem número")},
    });
    const auto failure = [&](const char* member) { return FailureIn([&] { failing->Call(member); }); };
    EXPECT_EQ(failure("A").Number(), 91);
    EXPECT_EQ(failure("A").Description(), "Sem objeto à mão");
    EXPECT_EQ(failure("B").Number(), 1004);
    EXPECT_EQ(failure("C").Number(), -2147217887);
    EXPECT_EQ(failure("C").Description(), "O valor não cabe");
    EXPECT_EQ(failure("D").Number(), 13);
    EXPECT_EQ(failure("E").Number(), 11);
    EXPECT_EQ(failure("E").Description(), "Divisão por zero");
    EXPECT_EQ(failure("F").Number(), 450);
    EXPECT_EQ(failure("G").Number(), E_FAIL) << "0 would be none";
    EXPECT_EQ(failure("G").Description(), "Sem número");
}

TEST(ForeignObject, TellsWhichMemberIsMissing)
{
    const ComponentRef empty = Seen({});
    const Failure failure = FailureIn([&] { empty->Get("Código"); });
    EXPECT_EQ(failure.Number(), 438);
    EXPECT_NE(failure.Description().find("'Código'"), Text::npos) << failure.Description();
}

TEST(ForeignObject, IsLetGoOfWithTheLastReference)
{
    ComponentRef user = Seen({});
    EXPECT_EQ(Stranger::alive, 1);
    EXPECT_EQ(ForeignObjects(), 1);
    user.reset();
    EXPECT_EQ(Stranger::alive, 0);
    EXPECT_EQ(ForeignObjects(), 0);
}

TEST(ForeignObject, IsUsedInItsOwnThreadAlone)
{
    const ComponentRef user = Seen({{L"Nome", [](const Stranger::Call&) { return S_OK; }}});
    std::int32_t number = 0;
    std::thread([&] { number = FailureIn([&] { user->Get("Nome"); }).Number(); }).join();
    EXPECT_EQ(number, static_cast<std::int32_t>(RPC_E_WRONG_THREAD));
}

TEST(ForeignObject, GivesOurOwnObjectsBackAsThemselves)
{
    Value kept;
    const ComponentRef keeper = Seen({{L"Guardar", [&](const Stranger::Call& call) {
                                           kept = ValueOf(call.parameters.rgvarg[0]);
                                           return ::VariantCopy(&call.answer, &call.parameters.rgvarg[0]);
                                       }}});
    const auto vault = std::make_shared<test::Vault>();
    EXPECT_EQ(keeper->Call("Guardar", {vault}).HeldObject(), vault);
    EXPECT_EQ(kept.HeldObject(), vault);
    EXPECT_EQ(SeenObjects(), 0);
}

TEST(ForeignObject, IsARecordSetWhereItHasWhatOneHas)
{
    LONG position = 1;
    const auto answering = [](const Value& value) {
        return [value](const Stranger::Call& call) {
            Put(value, call.answer);
            return S_OK;
        };
    };
    const Held<IDispatch> field(new Stranger({{L"Value",
                                               [&](const Stranger::Call& call) {
                                                   Put(position == 1 ? "Rex" : "Bidu", call.answer);
                                                   return S_OK;
                                               }},
                                              {L"Name", answering("NOME")}}));
    const Held<IDispatch> fields(
        new Stranger({{L"Count", answering(Long{1})}, {L"Item", answering(ObjectOf(field.Get()))}}));
    const Held<IDispatch> stranger(new Stranger({{L"RecordCount", answering(Long{2})},
                                                 {L"AbsolutePosition", answering(Long{1})},
                                                 {L"EOF", answering(false)},
                                                 {L"Sort", answering("NOME")},
                                                 {L"Fields", answering(ObjectOf(fields.Get()))},
                                                 {L"MoveNext", [&](const Stranger::Call&) {
                                                      ++position;
                                                      return S_OK;
                                                  }}}));
    const auto records = std::dynamic_pointer_cast<RecordSet>(ObjectOf(stranger.Get()));
    ASSERT_NE(records, nullptr);
    EXPECT_EQ(records->RecordCount(), 2);
    EXPECT_EQ(records->FieldCount(), 1);
    EXPECT_EQ(records->FieldName(0), "NOME");
    EXPECT_EQ(records->Field("NOME"), Value("Rex"));
    records->MoveNext();
    EXPECT_EQ(records->Field(0), Value("Bidu"));
    EXPECT_FALSE(records->Eof());
    EXPECT_EQ(records->Sort(), "NOME");
    EXPECT_EQ(FailureIn([&] { records->PageCount(); }).Number(), 438);
}

} // namespace kova::component
