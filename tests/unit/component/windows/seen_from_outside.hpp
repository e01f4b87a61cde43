#pragma once

#include "component/windows/dispatch.hpp"
#include "component/windows/variants.hpp"
#include "tests/unit/component/windows/vault.hpp"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace kova::component::test {

inline VARIANT Plain(const Value& value)
{
    VARIANT variant;
    ::VariantInit(&variant);
    Put(value, variant);
    return variant;
}

template <class Type> VARIANT Reference(VARTYPE type, Type* variable)
{
    VARIANT variant;
    variant.vt = static_cast<VARTYPE>(type | VT_BYREF);
    variant.byref = variable;
    return variant;
}

/// A vault as another program sees it.
class SeenFromOutside : public testing::Test {
protected:
    ~SeenFromOutside() override
    {
        ::SysFreeString(exception.bstrSource);
        ::SysFreeString(exception.bstrDescription);
    }

    static DISPID IdOf(IDispatch& object, const wchar_t* name)
    {
        auto* asked = const_cast<wchar_t*>(name);
        DISPID id = 0;
        const HRESULT status = object.GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
        EXPECT_EQ(status, id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK);
        return id;
    }

    /// Calls a member with the arguments, which are given in their order and emptied.
    HRESULT Invoke(const Held<IDispatch>& object, const wchar_t* name, WORD flags,
                   std::initializer_list<VARIANT> arguments = {})
    {
        std::vector<VARIANT> passed(std::rbegin(arguments), std::rend(arguments));
        DISPID put = DISPID_PROPERTYPUT;
        const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        DISPPARAMS parameters = {passed.data(), isPut ? &put : nullptr, static_cast<UINT>(passed.size()),
                                 isPut ? 1U : 0U};
        ::VariantClear(&answer);
        const DISPID id = *name != L'\0' ? IdOf(*object.Get(), name) : DISPID_VALUE;
        const HRESULT status = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &answer,
                                              &exception, nullptr);
        for (VARIANT& variant : passed)
            ::VariantClear(&variant);
        return status;
    }
    HRESULT Call(const wchar_t* name, std::initializer_list<VARIANT> arguments = {})
    {
        return Invoke(seen, name, DISPATCH_METHOD, arguments);
    }

    std::shared_ptr<Vault> vault = std::make_shared<Vault>();
    Held<IDispatch> seen = DispatchOf(vault);
    Variant answer;
    EXCEPINFO exception = {};
};

} // namespace kova::component::test
