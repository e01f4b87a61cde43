#pragma once

#include "agenda/contracts/business_services.hpp"
#include "component/windows/objects.hpp"

#include <dispex.h>

#include <atomic>
#include <vector>

namespace kova::component {

/// An object of ours as other programs see it: members by name, without regard to case unless a program asks
/// for it, and listed. It is used in the thread that it was made in; elsewhere it is seen by what the system
/// puts in its place there.
class Dispatch : public IDispatchEx, public OwnObject {
public:
    /// The one of the object, made where there is none yet. It keeps the object, and the library loaded.
    static Held<IDispatch> Of(const ObjectRef& object);
    static long Count();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID interfaceId, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID interfaceId, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* answer, EXCEPINFO* exception,
                                     UINT* wrongArgument) override;

    HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD how, DISPID* id) override;
    HRESULT STDMETHODCALLTYPE InvokeEx(DISPID id, LCID locale, WORD flags, DISPPARAMS* parameters,
                                       VARIANT* answer, EXCEPINFO* exception,
                                       IServiceProvider* caller) override;
    HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID id, DWORD asked, DWORD* properties) override;
    HRESULT STDMETHODCALLTYPE GetMemberName(DISPID id, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD how, DISPID id, DISPID* next) override;
    HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown** parent) override;

    ObjectRef Own() override { return object_; }

private:
    explicit Dispatch(ObjectRef object);
    virtual ~Dispatch();

    bool IsElsewhere() const;
    const Member* MemberOf(DISPID id) const;
    DISPID IdOf(std::string_view name);
    Value Act(const Member& member, WORD flags, const DISPPARAMS& parameters);

    std::atomic<ULONG> references_ = 0;
    DWORD thread_;
    ObjectRef object_;
    /// The object itself, or what stands for a record set; null where the object has no members.
    ComponentRef component_;
    /// An id is a place here, from 1. A component that lists none gets the names that are asked for.
    std::vector<Member> members_;
    bool listsMembers_;
    std::shared_ptr<void> keepsLibrary_;
};

} // namespace kova::component
