#include "agenda/contracts/business_services.hpp"

namespace kova {

void Argument::Assign(const Value& value) { value_ = assign_ ? assign_(value) : value; }

Argument ByRef(Integer& variable)
{
    return {Value(variable), [&variable](const Value& value) { return Value(variable = value.ToInteger()); }};
}

Argument ByRef(Long& variable)
{
    return {Value(variable), [&variable](const Value& value) { return Value(variable = value.ToLong()); }};
}

Argument ByRef(Double& variable)
{
    return {Value(variable), [&variable](const Value& value) { return Value(variable = value.ToDouble()); }};
}

Argument ByRef(Text& variable)
{
    return {Value(variable), [&variable](const Value& value) { return Value(variable = value.ToText()); }};
}

Argument ByRef(ObjectRef& variable)
{
    return {Value(variable), [&variable](const Value& value) {
                // A dropped reference empties the variable; everything else must be an object.
                const bool dropped = value == Value(ObjectRef());
                return Value(variable = dropped ? ObjectRef() : value.ToObject());
            }};
}

Argument ByRef(Value& variable)
{
    return {variable, [&variable](const Value& value) { return variable = value; }};
}

} // namespace kova
