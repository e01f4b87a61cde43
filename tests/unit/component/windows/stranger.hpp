#pragma once

#include "agenda/contracts/value.hpp"
#include "component/windows/variants.hpp"

#include <functional>
#include <map>
#include <string>

namespace kova::component::test {

/// An object of another maker: members in a table, each a function of what came with the call, the last
/// argument first. Names have no case. It counts how many of its kind live.
class Stranger : public IDispatch {
public:
    struct Call {
        WORD flags;
        DISPPARAMS& parameters;
        VARIANT& answer;
        EXCEPINFO& exception;
    };
    using Act = std::function<HRESULT(const Call&)>;

    explicit Stranger(std::map<std::wstring, Act> members) : members_(std::move(members)) { ++alive; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** found) override
    {
        *found = nullptr;
        if (!IsEqualIID(interfaceId, IID_IUnknown) && !IsEqualIID(interfaceId, IID_IDispatch))
            return E_NOINTERFACE;
        AddRef();
        *found = static_cast<IDispatch*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return DISP_E_BADINDEX; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override
    {
        DISPID id = 100;
        for (const auto& [name, act] : members_) {
            ++id;
            if (_wcsicmp(name.c_str(), names[0]) == 0) {
                *ids = id;
                return S_OK;
            }
        }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* answer, EXCEPINFO* exception, UINT*) override
    {
        auto member = members_.begin();
        std::advance(member, id - 101);
        Variant nobodys;
        return member->second({flags, *parameters, answer ? *answer : nobodys, *exception});
    }

    static inline int alive = 0;

private:
    virtual ~Stranger() { --alive; }

    std::map<std::wstring, Act> members_;
    ULONG references_ = 0;
};

} // namespace kova::component::test
