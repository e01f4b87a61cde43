#include "component/windows/foreign.hpp"

#include "component/windows/failures.hpp"
#include "component/windows/foreign_component.hpp"
#include "component/windows/foreign_record_set.hpp"
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

bool HasMember(const Held<IDispatch>& dispatch, const wchar_t* name)
{
    auto* asked = const_cast<wchar_t*>(name);
    DISPID id = 0;
    return SUCCEEDED(dispatch->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id));
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

Foreign::Foreign(Held<IDispatch> dispatch) : dispatch_(std::move(dispatch)), thread_(::GetCurrentThreadId())
{
    ++TheKnown().count;
}

Foreign::~Foreign()
{
    if (ended || ::GetCurrentThreadId() != thread_)
        dispatch_.Release();
    if (!ended)
        --TheKnown().count;
}

long Foreign::Count() { return TheKnown().count; }

Value Foreign::Read(std::string_view member) const
{
    return Invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, {});
}

void Foreign::Write(std::string_view member, const Value& value) const
{
    Argument argument = value;
    if (value.GetType() == ValueType::Object)
        try {
            Invoke(member, DISPATCH_PROPERTYPUTREF, {&argument, 1});
            return;
        } catch (const Failure& failure) {
            // Many take objects as they take everything else.
            if (failure.Number() != static_cast<std::int32_t>(FailureNumber::NoSuchMember))
                throw;
        }
    Invoke(member, DISPATCH_PROPERTYPUT, {&argument, 1});
}

Value Foreign::Run(std::string_view member, std::span<Argument> arguments) const
{
    return Invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

DISPID Foreign::IdOf(std::string_view member) const
{
    if (const auto known = ids_.find(member); known != ids_.end())
        return known->second;
    std::wstring name = system::Wide(member);
    wchar_t* asked = name.data();
    DISPID id = 0;
    const HRESULT status = dispatch_->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    if (status == DISP_E_UNKNOWNNAME)
        throw NoSuchMember(member);
    if (FAILED(status))
        throw FailureOf(status);
    ids_.emplace(member, id);
    return id;
}

Value Foreign::Invoke(std::string_view member, WORD flags, std::span<Argument> arguments) const
{
    if (::GetCurrentThreadId() != thread_)
        throw FailureOf(RPC_E_WRONG_THREAD);
    const DISPID id = IdOf(member);
    PassedArguments passed(arguments);
    DISPID written = DISPID_PROPERTYPUT;
    const bool isWrite = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters = {passed.First(), isWrite ? &written : nullptr, passed.Count(), isWrite ? 1U : 0U};
    Variant answer;
    EXCEPINFO exception = {};
    UINT wrongArgument = 0;
    const HRESULT status = dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                             isWrite ? nullptr : &answer, &exception, &wrongArgument);
    if (status == DISP_E_MEMBERNOTFOUND)
        throw NoSuchMember(member);
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
