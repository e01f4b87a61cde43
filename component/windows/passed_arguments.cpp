#include "component/windows/passed_arguments.hpp"

#include "component/windows/arrays.hpp"

#include <algorithm>

namespace kova::component {

namespace {

VARIANT ReferenceTo(Variant& held, bool asVariant)
{
    VARIANT reference;
    ::VariantInit(&reference);
    const bool hasType = held.vt != VT_EMPTY && held.vt != VT_NULL;
    reference.vt = static_cast<VARTYPE>((asVariant || !hasType ? VARTYPE(VT_VARIANT) : held.vt) | VT_BYREF);
    reference.byref = asVariant || !hasType ? static_cast<void*>(&held) : static_cast<void*>(&held.llVal);
    return reference;
}

/// Where an array lies that the callee may write into; null where there is none.
SAFEARRAY** ArrayIn(const VARIANT& variant)
{
    if ((variant.vt & VT_BYREF) == 0)
        return nullptr;
    const Variable variable = VariableOf(variant);
    if ((variable.type & VT_ARRAY) != 0)
        return static_cast<SAFEARRAY**>(variable.place);
    auto* any = variable.type == VT_VARIANT ? static_cast<VARIANT*>(variable.place) : nullptr;
    return any && (any->vt & VT_ARRAY) != 0 ? &any->parray : nullptr;
}

Argument ReceivedArgument(const VARIANT& variant)
{
    if ((variant.vt & VT_BYREF) == 0)
        return ValueOf(variant);
    const Variable variable = VariableOf(variant);
    if ((variable.type & VT_ARRAY) != 0)
        return ValueOf(variant);
    return ByRef(
        ValueOf(variant),
        [variable](const Value& value) { return Store(value, variable.type, variable.place); },
        variable.type == VT_VARIANT);
}

bool IsMissing(const VARIANT& variant)
{
    if (variant.vt == (VT_BYREF | VT_VARIANT)) {
        const Variable variable = VariableOf(variant);
        return variable.type == VT_VARIANT && IsMissing(*static_cast<VARIANT*>(variable.place));
    }
    return variant.vt == VT_ERROR && variant.scode == DISP_E_PARAMNOTFOUND;
}

} // namespace

PassedArguments::PassedArguments(std::span<Argument> arguments) : arguments_(arguments)
{
    passed_.reserve(arguments.size());
    for (std::size_t at = arguments.size(); at-- > 0;) {
        const Argument& argument = arguments[at];
        Variant& held = held_.emplace_front();
        Put(argument.Get(), held);
        if (argument.IsByReference())
            passed_.push_back(ReferenceTo(held, argument.TakesEveryType()));
        else
            passed_.push_back(held);
    }
}

void PassedArguments::WriteBack()
{
    for (std::size_t at = 0; at < arguments_.size(); ++at) {
        Argument& argument = arguments_[at];
        if (!argument.IsByReference())
            continue;
        const Value now = ValueOf(held_[at]);
        const bool areArrays =
            now.GetType() == ValueType::Array && argument.Get().GetType() == ValueType::Array;
        if (areArrays && CopyInto(*argument.Get().ToArray(), *now.ToArray()))
            continue;
        if (!(now == argument.Get()))
            argument.Assign(now);
    }
}

ReceivedArguments::ReceivedArguments(const DISPPARAMS& parameters)
{
    UINT count = parameters.cArgs;
    // What is left out at the end was not given.
    UINT last = 0;
    while (last < count && IsMissing(parameters.rgvarg[last]))
        ++last;
    arguments_.reserve(count);
    for (UINT at = count; at-- > last;) {
        const VARIANT& variant = parameters.rgvarg[at];
        arguments_.push_back(ReceivedArgument(variant));
        const Value& value = arguments_.back().Get();
        if (SAFEARRAY** array = ArrayIn(variant); array && value.GetType() == ValueType::Array)
            arrays_.push_back({arguments_.size() - 1, value.ToArray(), array});
    }
}

void ReceivedArguments::WriteArraysBack()
{
    // Where the callee has written another value, the array is not there any more.
    for (const Lent& lent : arrays_)
        if (arguments_[lent.argument].Get() == Value(lent.array))
            CopyInto(*lent.place, *lent.array);
}

} // namespace kova::component
