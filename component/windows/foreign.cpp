#include "component/windows/foreign.hpp"

#include "component/windows/failures.hpp"
#include "component/windows/foreign_component.hpp"
#include "component/windows/foreign_record_set.hpp"
#include "component/windows/objects.hpp"
#include "component/windows/passed_arguments.hpp"
#include "component/windows/variants.hpp"
#include "system/windows/wide_text.hpp"

namespace kova::component {

namespace {

/// Whether the library is being unloaded: other makers' may be gone before it.
bool ended = false;

/// Those of other makers that stand behind objects of ours, by what tells them apart.
struct Known {
    std::map<IUnknown*, std::weak_ptr<Object>> objects;
    long count = 0;
    ~Known() { ended = true; }
};

Known& TheKnown()
{
    static Known known;
    return known;
}

HRESULT IdIn(const Held<IDispatch>& dispatch, const Held<IDispatchEx>& listing, std::wstring name, DISPID& id)
{
    wchar_t* asked = name.data();
    if (!listing)
        return dispatch->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    BSTR text = ::SysAllocString(asked);
    const HRESULT status = listing->GetDispID(text, fdexNameCaseInsensitive, &id);
    ::SysFreeString(text);
    return status;
}

bool HasMember(const Held<IDispatch>& dispatch, const wchar_t* name)
{
    DISPID id = 0;
    return SUCCEEDED(IdIn(dispatch, dispatch.As<IDispatchEx>(ListingId), name, id));
}

bool IsRecordSet(const Held<IDispatch>& dispatch)
{
    for (const wchar_t* name : {L"AbsolutePosition", L"MoveNext", L"Fields", L"RecordCount"})
        if (!HasMember(dispatch, name))
            return false;
    return true;
}

Failure NoSuchMember(std::string_view member)
{
    return {FailureNumber::NoSuchMember,
            "O objeto não aceita a propriedade ou método '" + Text(member) + "'."};
}

} // namespace

Foreign::Foreign(Held<IDispatch> dispatch)
    : dispatch_(std::move(dispatch)),
      listing_(dispatch_.As<IDispatchEx>(ListingId)),
      thread_(::GetCurrentThreadId())
{
    ++TheKnown().count;
}

Foreign::~Foreign()
{
    if (ended || ::GetCurrentThreadId() != thread_) {
        dispatch_.Release();
        listing_.Release();
    }
    if (!ended)
        --TheKnown().count;
}

long Foreign::Count() { return TheKnown().count; }

Value Foreign::Read(std::string_view member) const
{
    return InvokeByEither(member, DISPATCH_PROPERTYGET, DISPATCH_METHOD, {});
}

void Foreign::Write(std::string_view member, const Value& value) const
{
    Argument argument = value;
    const WORD first = value.GetType() == ValueType::Object ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    // Many take objects as they take everything else.
    InvokeByEither(member, first, DISPATCH_PROPERTYPUT, {&argument, 1});
}

Value Foreign::Run(std::string_view member, std::span<Argument> arguments) const
{
    return InvokeByEither(member, DISPATCH_METHOD, DISPATCH_PROPERTYGET, arguments);
}

DISPID Foreign::IdOf(std::string_view member) const
{
    if (const auto known = ids_.find(member); known != ids_.end())
        return known->second;
    DISPID id = 0;
    const HRESULT status = IdIn(dispatch_, listing_, system::Wide(member), id);
    if (status == DISP_E_UNKNOWNNAME || status == DISP_E_MEMBERNOTFOUND)
        throw NoSuchMember(member);
    if (FAILED(status))
        throw FailureOf(status);
    ids_.emplace(member, id);
    return id;
}

Value Foreign::InvokeByEither(std::string_view member, WORD first, WORD second,
                              std::span<Argument> arguments) const
{
    if (::GetCurrentThreadId() != thread_)
        throw FailureOf(RPC_E_WRONG_THREAD);
    const DISPID id = IdOf(member);
    for (const WORD flags : {first, second})
        if (const auto answer = Invoke(id, flags, arguments))
            return *answer;
    throw NoSuchMember(member);
}

std::optional<Value> Foreign::Invoke(DISPID id, WORD flags, std::span<Argument> arguments) const
{
    PassedArguments passed(arguments);
    DISPID written = DISPID_PROPERTYPUT;
    const bool isWrite = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters = {passed.First(), isWrite ? &written : nullptr, passed.Count(), isWrite ? 1U : 0U};
    Variant answer;
    EXCEPINFO exception = {};
    VARIANT* const result = isWrite ? nullptr : &answer;
    const HRESULT status = listing_
        ? listing_->InvokeEx(id, LOCALE_USER_DEFAULT, flags, &parameters, result, &exception, nullptr)
        : dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &exception,
                            nullptr);
    if (status == DISP_E_MEMBERNOTFOUND)
        return std::nullopt;
    if (FAILED(status))
        throw FailureOf(status, exception);
    passed.WriteBack();
    return ValueOf(answer);
}

ObjectRef ForeignObjectOf(const Held<IDispatch>& dispatch)
{
    auto& objects = TheKnown().objects;
    const auto identity = dispatch.As<IUnknown>(IID_IUnknown);
    if (const auto known = objects.find(identity.Get()); known != objects.end())
        if (ObjectRef object = known->second.lock())
            return object;
    std::erase_if(objects, [](const auto& entry) { return entry.second.expired(); });
    ObjectRef made;
    if (IsRecordSet(dispatch))
        made = std::make_shared<ForeignRecordSet>(dispatch);
    else
        made = std::make_shared<ForeignComponent>(dispatch);
    objects[identity.Get()] = made;
    return made;
}

} // namespace kova::component
