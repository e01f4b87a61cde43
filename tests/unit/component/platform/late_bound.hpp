#pragma once

#include <windows.h>

#include <cwchar>
#include <initializer_list>
#include <vector>

/// What a program that binds late has of its own: a user with the two properties that components ask for.
class ShellUser : public IDispatch {
public:
    ShellUser(const wchar_t* name, LONG code) : name_(name), code_(code) { }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) override
    {
        const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch);
        *found = isKnown ? this : nullptr;
        if (isKnown)
            AddRef();
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    /// It outlives all who refer to it; how many do is all that is counted.
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override { return --references_; }
    ULONG References() const { return references_; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* id) override
    {
        *id = ::_wcsicmp(*names, L"Nome") == 0 ? 1 : ::_wcsicmp(*names, L"Codigo") == 0 ? 2 : DISPID_UNKNOWN;
        return *id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override
    {
        if (!result)
            return E_POINTER;
        result->vt = id == 1 ? VT_BSTR : VT_I4;
        if (id == 1)
            result->bstrVal = ::SysAllocString(name_);
        else
            result->lVal = code_;
        return S_OK;
    }

private:
    const wchar_t* name_;
    LONG code_;
    ULONG references_ = 0;
};

inline VARIANT Number(LONG number)
{
    VARIANT variant;
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

inline VARIANT Object(IDispatch& object)
{
    VARIANT variant;
    variant.vt = VT_DISPATCH;
    variant.pdispVal = &object;
    return variant;
}

/// The registered class of that name; null where it cannot be created.
inline IDispatch* CreateLateBound(const wchar_t* name)
{
    CLSID classId;
    void* made = nullptr;
    if (SUCCEEDED(::CLSIDFromProgID(name, &classId)))
        ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &made);
    return static_cast<IDispatch*>(made);
}

/// Calls a member with arguments in their order; answers its code, or that of the failure.
inline HRESULT CallLateBound(IDispatch& object, const wchar_t* name, WORD flags,
                             std::initializer_list<VARIANT> arguments)
{
    auto* asked = const_cast<wchar_t*>(name);
    DISPID id = 0;
    if (const HRESULT status = object.GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
        FAILED(status))
        return status;
    std::vector<VARIANT> passed(std::rbegin(arguments), std::rend(arguments));
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut = flags != DISPATCH_METHOD;
    DISPPARAMS parameters = {passed.data(), isPut ? &put : nullptr, static_cast<UINT>(passed.size()),
                             isPut ? 1U : 0U};
    EXCEPINFO exception = {};
    const HRESULT status =
        object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, nullptr, &exception, nullptr);
    ::SysFreeString(exception.bstrDescription);
    ::SysFreeString(exception.bstrSource);
    return status == DISP_E_EXCEPTION ? exception.scode : status;
}
