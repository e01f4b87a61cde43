#include "agenda/contracts/business_services.hpp"

namespace kova {

void Argument::Assign(const Value& value) { value_ = assign_ ? assign_(value) : value; }

Argument ByRef(Integer& variable)
{
    return ByRef(
        variable, [&variable](const Value& value) { return Value(variable = value.ToInteger()); }, false);
}

Argument ByRef(Long& variable)
{
    return ByRef(
        variable, [&variable](const Value& value) { return Value(variable = value.ToLong()); }, false);
}

Argument ByRef(Double& variable)
{
    return ByRef(
        variable, [&variable](const Value& value) { return Value(variable = value.ToDouble()); }, false);
}

Argument ByRef(Text& variable)
{
    return ByRef(
        variable, [&variable](const Value& value) { return Value(variable = value.ToText()); }, false);
}

Argument ByRef(ObjectRef& variable)
{
    const auto assign = [&variable](const Value& value) {
        // A dropped reference empties the variable; everything else must be an object.
        const bool dropped = value == Value(ObjectRef());
        return Value(variable = dropped ? ObjectRef() : value.ToObject());
    };
    return ByRef(variable, assign, false);
}

Argument ByRef(Value& variable)
{
    return ByRef(
        variable, [&variable](const Value& value) { return variable = value; }, true);
}

Argument ByRef(Value value, Argument::Assigner assign, bool takesEveryType)
{
    return {std::move(value), std::move(assign), takesEveryType};
}

} // namespace kova
