#include "component/windows/dispatch.hpp"

#include "agenda/contracts/support/component_library.hpp"
#include "agenda/contracts/text.hpp"
#include "component/record_set_component.hpp"
#include "component/windows/failures.hpp"
#include "component/windows/passed_arguments.hpp"
#include "component/windows/variants.hpp"
#include "system/windows/wide_text.hpp"

#include <map>

namespace kova::component {

namespace {

std::map<Object*, Dispatch*>& Seen()
{
    // Never ended: a program may keep an object to its very end.
    static auto& seen = *new std::map<Object*, Dispatch*>;
    return seen;
}

ComponentRef ComponentOf(const ObjectRef& object)
{
    if (auto component = std::dynamic_pointer_cast<Component>(object))
        return component;
    if (auto records = std::dynamic_pointer_cast<RecordSet>(object))
        return std::make_shared<RecordSetComponent>(records);
    return nullptr;
}

bool IsWrite(WORD flags) { return (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }

/// Arguments have no names, but for the value that a property is given.
bool NamesArguments(WORD flags, const DISPPARAMS& parameters)
{
    if (IsWrite(flags))
        return parameters.cNamedArgs != 1 || parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT;
    return parameters.cNamedArgs != 0;
}

} // namespace

Held<IDispatch> Dispatch::Of(const ObjectRef& object)
{
    const auto seen = Seen().find(object.get());
    return Held<IDispatch>(seen != Seen().end() ? seen->second : new Dispatch(object));
}

long Dispatch::Count() { return static_cast<long>(Seen().size()); }

Dispatch::Dispatch(ObjectRef object)
    : thread_(::GetCurrentThreadId()),
      object_(std::move(object)),
      component_(ComponentOf(object_)),
      members_(component_ ? component_->Members() : std::vector<Member>()),
      listsMembers_(!component_ || !members_.empty()),
      keepsLibrary_(ServedLibrary::Get().Hold())
{
    Seen().emplace(object_.get(), this);
}

Dispatch::~Dispatch() { Seen().erase(object_.get()); }

HRESULT Dispatch::QueryInterface(REFIID interfaceId, void** found)
{
    if (!found)
        return E_POINTER;
    if (IsEqualIID(interfaceId, IID_IUnknown) || IsEqualIID(interfaceId, IID_IDispatch)
        || IsEqualIID(interfaceId, ListingId))
        *found = static_cast<IDispatchEx*>(this);
    else if (IsEqualIID(interfaceId, OwnObjectId))
        *found = static_cast<OwnObject*>(this);
    else {
        *found = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

ULONG Dispatch::Release()
{
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT Dispatch::GetTypeInfoCount(UINT* count)
{
    if (!count)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT Dispatch::GetTypeInfo(UINT, LCID, ITypeInfo** info)
{
    if (info)
        *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT Dispatch::GetIDsOfNames(REFIID interfaceId, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    if (!IsEqualIID(interfaceId, IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    if (!names || !ids || count == 0 || !names[0])
        return E_INVALIDARG;
    if (IsElsewhere())
        return RPC_E_WRONG_THREAD;
    // The first is the member's, the others would be its arguments'.
    for (UINT at = 0; at < count; ++at)
        ids[at] = DISPID_UNKNOWN;
    return Guarded([&] {
        ids[0] = IdOf(system::Narrow(names[0]));
        return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
    });
}

HRESULT Dispatch::Invoke(DISPID id, REFIID interfaceId, LCID, WORD flags, DISPPARAMS* parameters,
                         VARIANT* answer, EXCEPINFO* exception, UINT*)
{
    if (IsElsewhere())
        return RPC_E_WRONG_THREAD;
    if (!IsEqualIID(interfaceId, IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    if (!parameters)
        return E_INVALIDARG;
    if (NamesArguments(flags, *parameters))
        return DISP_E_NONAMEDARGS;
    const Member* found = MemberOf(id);
    if (!found)
        return DISP_E_MEMBERNOTFOUND;
    // A caller may let go of the object while one of its members is on the stack.
    const Held<IDispatch> self(this);
    try {
        const Value result = Act(Member(*found), flags, *parameters);
        if (answer)
            Put(result, *answer);
        return S_OK;
    } catch (...) {
        return Raise(CaughtFailure(), exception);
    }
}

HRESULT Dispatch::GetDispID(BSTR name, DWORD how, DISPID* id)
{
    if (!name || !id)
        return E_INVALIDARG;
    if (IsElsewhere())
        return RPC_E_WRONG_THREAD;
    return Guarded([&] {
        const Text wanted = TextOf(name);
        *id = IdOf(wanted);
        if (*id != DISPID_UNKNOWN && (how & fdexNameCaseSensitive) != 0 && MemberOf(*id)->name != wanted)
            *id = DISPID_UNKNOWN;
        return *id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
    });
}

HRESULT Dispatch::InvokeEx(DISPID id, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* answer,
                           EXCEPINFO* exception, IServiceProvider*)
{
    if ((flags & DISPATCH_CONSTRUCT) != 0)
        return DISP_E_MEMBERNOTFOUND;
    if (!parameters)
        return E_INVALIDARG;
    // The object may come along as a first named argument.
    DISPPARAMS plain = *parameters;
    if (plain.cNamedArgs > 0 && plain.rgdispidNamedArgs[0] == DISPID_THIS) {
        --plain.cNamedArgs;
        ++plain.rgdispidNamedArgs;
        --plain.cArgs;
        ++plain.rgvarg;
    }
    return Invoke(id, IID_NULL, locale, flags, &plain, answer, exception, nullptr);
}

HRESULT Dispatch::GetMemberProperties(DISPID id, DWORD asked, DWORD* properties)
{
    const Member* member = MemberOf(id);
    if (!member)
        return DISP_E_MEMBERNOTFOUND;
    if (!properties)
        return E_POINTER;
    const bool isKnown = listsMembers_;
    const auto part = [&](bool can, DWORD yes, DWORD no) { return can || !isKnown ? yes : no; };
    *properties = asked
        & (part(member->isReadable, fdexPropCanGet, fdexPropCannotGet)
           | part(member->isWritable, fdexPropCanPut, fdexPropCannotPut)
           | part(member->isMethod, fdexPropCanCall, fdexPropCannotCall));
    return S_OK;
}

HRESULT Dispatch::GetMemberName(DISPID id, BSTR* name)
{
    if (!name)
        return E_POINTER;
    *name = nullptr;
    const Member* member = MemberOf(id);
    if (!member)
        return DISP_E_MEMBERNOTFOUND;
    return Guarded([&] {
        *name = BstrOf(member->name);
        return S_OK;
    });
}

HRESULT Dispatch::GetNextDispID(DWORD, DISPID id, DISPID* next)
{
    if (!next)
        return E_POINTER;
    *next = id == DISPID_STARTENUM ? 1 : id + 1;
    if (listsMembers_ && MemberOf(*next))
        return S_OK;
    *next = DISPID_UNKNOWN;
    return S_FALSE;
}

HRESULT Dispatch::GetNameSpaceParent(IUnknown** parent)
{
    if (parent)
        *parent = nullptr;
    return E_NOTIMPL;
}

bool Dispatch::IsElsewhere() const { return ::GetCurrentThreadId() != thread_; }

const Member* Dispatch::MemberOf(DISPID id) const
{
    if (id == DISPID_VALUE) {
        const auto* withDefault = dynamic_cast<const HasDefaultMember*>(component_.get());
        return withDefault ? &withDefault->DefaultMember() : nullptr;
    }
    if (id < 1 || static_cast<std::size_t>(id) > members_.size())
        return nullptr;
    return &members_[static_cast<std::size_t>(id) - 1];
}

DISPID Dispatch::IdOf(std::string_view name)
{
    const Text wanted = LowerCase(name);
    for (std::size_t at = 0; at < members_.size(); ++at)
        if (LowerCase(members_[at].name) == wanted)
            return static_cast<DISPID>(at + 1);
    if (listsMembers_)
        return DISPID_UNKNOWN;
    members_.push_back({Text(name), false, false, false});
    return static_cast<DISPID>(members_.size());
}

Value Dispatch::Act(const Member& member, WORD flags, const DISPPARAMS& parameters)
{
    ReceivedArguments arguments(parameters);
    if (IsWrite(flags)) {
        if (arguments.All().size() != 1)
            throw Failure(FailureNumber::WrongArgumentCount);
        component_->Set(member.name, arguments.All()[0].Get());
        return {};
    }
    // What is not listed may be either; reading has no arguments.
    const bool isListedProperty = listsMembers_ && !member.isMethod;
    const bool isReading = !listsMembers_ && arguments.All().empty() && (flags & DISPATCH_PROPERTYGET) != 0;
    if (isListedProperty && !arguments.All().empty())
        throw Failure(FailureNumber::WrongArgumentCount);
    if (isListedProperty || isReading)
        return component_->Get(member.name);
    const Value answer = component_->Call(member.name, arguments.All());
    arguments.WriteArraysBack();
    return answer;
}

} // namespace kova::component
