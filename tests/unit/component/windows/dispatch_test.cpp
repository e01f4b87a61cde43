// Our objects as other programs see them.

#include "component/windows/dispatch.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"
#include "component/windows/arrays.hpp"
#include "tests/unit/component/windows/seen_from_outside.hpp"
#include "tests/unit/component/windows/stranger.hpp"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace kova::component {

using test::Plain;
using test::Reference;
using test::SeenFromOutside;
using test::Stranger;
using test::Vault;

namespace {

/// A component that cannot tell its members, one of which is a property and one a method.
class Silent : public Component {
public:
    Value Get(std::string_view member) override
    {
        if (member != "Nome")
            throw Failure(FailureNumber::NoSuchMember);
        return "Ana";
    }
    void Set(std::string_view member, const Value& value) override
    {
        written = Text(member) + value.ToText();
    }
    using Component::Call;
    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        return Text(member) + std::to_string(arguments.size());
    }

    Text written;
};

} // namespace

TEST_F(SeenFromOutside, MembersAreFoundWithoutRegardToCase)
{
    const DISPID id = IdOf(*seen.Get(), L"Conteúdo");
    EXPECT_GT(id, 0);
    EXPECT_EQ(IdOf(*seen.Get(), L"CONTEÚDO"), id);
    EXPECT_NE(IdOf(*seen.Get(), L"moeda"), id);
    EXPECT_EQ(IdOf(*seen.Get(), L"Conteudo"), DISPID_UNKNOWN);
}

TEST_F(SeenFromOutside, MembersAreListedWithWhatCanBeDoneWithThem)
{
    const auto listing = seen.As<IDispatchEx>(ListingId);
    ASSERT_TRUE(listing);
    std::vector<Text> listed;
    DISPID id = DISPID_STARTENUM;
    while (listing->GetNextDispID(fdexEnumAll, id, &id) == S_OK) {
        BSTR name = nullptr;
        ASSERT_EQ(listing->GetMemberName(id, &name), S_OK);
        DWORD properties = 0;
        ASSERT_EQ(listing->GetMemberProperties(id, grfdexPropCanAll, &properties), S_OK);
        listed.push_back(TextOf(name) + ((properties & fdexPropCanCall) != 0 ? "()" : "")
                         + ((properties & fdexPropCanGet) != 0 ? " r" : "")
                         + ((properties & fdexPropCanPut) != 0 ? " w" : ""));
        ::SysFreeString(name);
    }
    EXPECT_EQ(listed,
              (std::vector<Text>{"Devolver()", "Contar()", "Escrever()", "Preencher()", "Falhar()",
                                 "Conteúdo r w", "Moeda r", "Senha w"}));
}

TEST_F(SeenFromOutside, MembersAreFoundWithTheirCaseWhereThatIsAskedFor)
{
    const auto listing = seen.As<IDispatchEx>(ListingId);
    const OwnBstr exact("Conteúdo");
    const OwnBstr small("conteúdo");
    DISPID id = 0;
    EXPECT_EQ(listing->GetDispID(exact.Get(), fdexNameCaseSensitive, &id), S_OK);
    EXPECT_EQ(id, IdOf(*seen.Get(), L"Conteúdo"));
    EXPECT_EQ(listing->GetDispID(small.Get(), fdexNameCaseSensitive, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(listing->GetDispID(small.Get(), fdexNameCaseInsensitive, &id), S_OK);
}

TEST_F(SeenFromOutside, MayBeHandedTheObjectItself)
{
    VARIANT passed[2] = {Plain(vault), Plain("um")};
    DISPID self = DISPID_THIS;
    DISPPARAMS parameters = {passed, &self, 2, 1};
    const auto listing = seen.As<IDispatchEx>(ListingId);
    EXPECT_EQ(listing->InvokeEx(IdOf(*seen.Get(), L"Contar"), LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                &parameters, &answer, &exception, nullptr),
              S_OK);
    EXPECT_EQ(ValueOf(answer), Value(Long{1}));
    for (VARIANT& variant : passed)
        ::VariantClear(&variant);
}

TEST_F(SeenFromOutside, PropertiesAreReadAndWritten)
{
    EXPECT_EQ(Invoke(seen, L"conteúdo", DISPATCH_PROPERTYPUT, {Plain("ração")}), S_OK);
    EXPECT_EQ(vault->held, Value("ração"));
    for (const WORD flags : {DISPATCH_PROPERTYGET, DISPATCH_METHOD, DISPATCH_PROPERTYGET | DISPATCH_METHOD}) {
        EXPECT_EQ(Invoke(seen, L"CONTEÚDO", flags), S_OK);
        EXPECT_EQ(ValueOf(answer), Value("ração"));
    }
}

TEST_F(SeenFromOutside, FailuresComeAsExceptionsWithNumberAndText)
{
    EXPECT_EQ(Call(L"Falhar", {Plain(Long{3265}), Plain("O campo não existe")}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, static_cast<SCODE>(0x800A0000 + 3265));
    EXPECT_STREQ(exception.bstrDescription, L"O campo não existe");
    EXPECT_STREQ(exception.bstrSource, L"Kovaris");
}

TEST_F(SeenFromOutside, AFailureWithACodeOfTheSystemKeepsIt)
{
    EXPECT_EQ(Call(L"Falhar", {Plain(Long{-2147217887}), Plain("Não cabe")}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, -2147217887);
}

TEST_F(SeenFromOutside, WhatMayNotBeDoneWithAMemberFails)
{
    EXPECT_EQ(Invoke(seen, L"Moeda", DISPATCH_PROPERTYPUT, {Plain("dólar")}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 450);
    EXPECT_EQ(Invoke(seen, L"Senha", DISPATCH_PROPERTYGET), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 438);
    EXPECT_EQ(Invoke(seen, L"Moeda", DISPATCH_METHOD, {Plain(Long{1})}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 450);
    EXPECT_EQ(Call(L"Devolver"), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 450);
    DISPPARAMS none = {};
    EXPECT_EQ(seen->Invoke(99, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(seen->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
}

TEST_F(SeenFromOutside, AFailureNeedsNobodyToListen)
{
    DISPPARAMS none = {};
    EXPECT_EQ(seen->Invoke(IdOf(*seen.Get(), L"Devolver"), IID_NULL, 0, DISPATCH_METHOD, &none, nullptr,
                           nullptr, nullptr),
              static_cast<HRESULT>(0x800A0000 + 450));
}

TEST_F(SeenFromOutside, ArgumentsLeftOutAtTheEndWereNotGiven)
{
    VARIANT missing;
    missing.vt = VT_ERROR;
    missing.scode = DISP_E_PARAMNOTFOUND;
    Call(L"Contar", {Plain(Long{1}), missing, missing});
    EXPECT_EQ(ValueOf(answer), Value(Long{1}));
    Call(L"Contar", {missing, Plain(Long{1})});
    EXPECT_EQ(ValueOf(answer), Value(Long{2}));
}

TEST_F(SeenFromOutside, VariablesAreWrittenWithTheirOwnType)
{
    SHORT number = 1;
    EXPECT_EQ(Call(L"Escrever", {Reference(VT_I2, &number), Plain("12")}), S_OK);
    EXPECT_EQ(number, 12);
    EXPECT_EQ(Call(L"Escrever", {Reference(VT_I2, &number), Plain(Long{99999})}), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode & 0xFFFF, 6);
    EXPECT_EQ(number, 12);
    Variant any;
    Call(L"Escrever", {Reference<VARIANT>(VT_VARIANT, &any), Plain("tosa")});
    EXPECT_EQ(ValueOf(any), Value("tosa"));
    // As script hosts do with variables of a type.
    VARIANT inner = Reference(VT_I2, &number);
    Call(L"Escrever", {Reference(VT_VARIANT, &inner), Plain("34")});
    EXPECT_EQ(number, 34);
}

TEST_F(SeenFromOutside, ElementsOfAnArrayByReferenceAreWritten)
{
    const auto table = std::make_shared<Array>(1, 1);
    table->At(1, 1) = "fica";
    Variant variable;
    Put(table, variable);
    EXPECT_EQ(Call(L"Preencher", {Reference<VARIANT>(VT_VARIANT, &variable)}), S_OK);
    EXPECT_EQ(ValueOf(variable).ToArray()->At(0, 0), Value(Long{7}));
    EXPECT_EQ(ValueOf(variable).ToArray()->At(1, 1), Value("fica"));
    SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
    SAFEARRAY* numbers = ::SafeArrayCreate(VT_I2, 2, bounds);
    EXPECT_EQ(Call(L"Preencher", {Reference(VT_ARRAY | VT_I2, &numbers)}), S_OK);
    EXPECT_EQ(ArrayOf(numbers)->At(0, 0), Value(Integer{7}));
    ::SafeArrayDestroy(numbers);
}

TEST_F(SeenFromOutside, AnArrayByReferenceMayBecomeAnotherValue)
{
    Variant variable;
    Put(std::make_shared<Array>(1, 1), variable);
    Call(L"Escrever", {Reference<VARIANT>(VT_VARIANT, &variable), Plain("nada")});
    EXPECT_EQ(ValueOf(variable), Value("nada"));
}

TEST_F(SeenFromOutside, AnObjectIsAlwaysTheSame)
{
    EXPECT_EQ(DispatchOf(vault).Get(), seen.Get());
    EXPECT_EQ(Call(L"Devolver", {Plain(vault)}), S_OK);
    EXPECT_EQ(answer.pdispVal, seen.Get());
    Invoke(seen, L"Conteúdo", DISPATCH_PROPERTYPUTREF, {Plain(vault)});
    EXPECT_EQ(vault->held.HeldObject(), vault);
    vault->held = Value();
}

TEST_F(SeenFromOutside, AStrangersObjectComesBackAsItself)
{
    const Held<IDispatch> stranger(new Stranger({}));
    VARIANT passed;
    passed.vt = VT_DISPATCH;
    passed.pdispVal = Held<IDispatch>(stranger).Release();
    EXPECT_EQ(Invoke(seen, L"Conteúdo", DISPATCH_PROPERTYPUTREF, {passed}), S_OK);
    EXPECT_EQ(ForeignObjects(), 1);
    EXPECT_EQ(ObjectOf(stranger.Get()), vault->held.HeldObject());
    Invoke(seen, L"Conteúdo", DISPATCH_PROPERTYGET);
    EXPECT_EQ(answer.pdispVal, stranger.Get());
    vault->held = Value();
    EXPECT_EQ(ForeignObjects(), 0);
}

TEST_F(SeenFromOutside, ARecordSetHasItsMembersAndAFieldItsValue)
{
    const Value records = std::make_shared<MemoryRecordSet>(std::vector<Text>{"Nome"},
                                                            std::vector<std::vector<Value>>{{"Rex"}});
    const auto seenRecords = DispatchOf(records.HeldObject());
    EXPECT_EQ(Invoke(seenRecords, L"eof", DISPATCH_PROPERTYGET), S_OK);
    EXPECT_EQ(ValueOf(answer), Value(false));
    EXPECT_EQ(Invoke(seenRecords, L"", DISPATCH_PROPERTYGET | DISPATCH_METHOD, {Plain("NOME")}), S_OK);
    const Held<IDispatch> field(answer.pdispVal);
    EXPECT_EQ(Invoke(field, L"", DISPATCH_PROPERTYGET), S_OK);
    EXPECT_EQ(ValueOf(answer), Value("Rex"));
    EXPECT_EQ(ObjectOf(seenRecords.Get()), records.HeldObject());
}

TEST_F(SeenFromOutside, AComponentThatListsNoMembersIsAskedForEveryName)
{
    const auto silent = std::make_shared<Silent>();
    const auto seenSilent = DispatchOf(silent);
    EXPECT_EQ(Invoke(seenSilent, L"Nome", DISPATCH_PROPERTYGET | DISPATCH_METHOD), S_OK);
    EXPECT_EQ(ValueOf(answer), Value("Ana"));
    EXPECT_EQ(Invoke(seenSilent, L"Abrir", DISPATCH_METHOD), S_OK);
    EXPECT_EQ(ValueOf(answer), Value("Abrir0"));
    EXPECT_EQ(Invoke(seenSilent, L"Abrir", DISPATCH_PROPERTYGET | DISPATCH_METHOD, {Plain(Long{1})}), S_OK);
    EXPECT_EQ(ValueOf(answer), Value("Abrir1"));
    EXPECT_EQ(Invoke(seenSilent, L"Código", DISPATCH_PROPERTYPUT, {Plain(Long{7})}), S_OK);
    EXPECT_EQ(silent->written, "Código7");
}

TEST_F(SeenFromOutside, KeepsTheLibraryAndTheObjectWhileItIsSeen)
{
    EXPECT_EQ(SeenObjects(), 1);
    EXPECT_EQ(test::Library().CanUnloadNow(), 1);
    const std::weak_ptr<Vault> watched = vault;
    vault.reset();
    EXPECT_FALSE(watched.expired());
    seen = {};
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(SeenObjects(), 0);
    EXPECT_EQ(test::Library().CanUnloadNow(), 0);
}

TEST_F(SeenFromOutside, IsUsedInItsOwnThreadAlone)
{
    HRESULT status = S_OK;
    std::thread([&] {
        DISPPARAMS none = {};
        status = seen->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
    }).join();
    EXPECT_EQ(status, RPC_E_WRONG_THREAD);
}

TEST_F(SeenFromOutside, HasNoOtherInterfaces)
{
    void* found = this;
    EXPECT_EQ(seen->QueryInterface(IID_IClassFactory, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    UINT count = 1;
    EXPECT_EQ(seen->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0U);
}

} // namespace kova::component
