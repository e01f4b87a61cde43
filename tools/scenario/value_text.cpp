#include "tools/scenario/value_text.hpp"

#include "agenda/contracts/text.hpp"

namespace kova::scenario {

namespace {

std::string PrintObject(const ObjectRef& object)
{
    if (!object)
        return "<nothing>";
    if (const auto* named = dynamic_cast<const PrintedObject*>(object.get()))
        return named->PrintedText();
    if (dynamic_cast<const RecordSet*>(object.get()))
        return "<recordset>";
    return "<object>";
}

std::string PrintArray(const Array& array)
{
    const Long first = array.UpperBound(1) + 1;
    const Long second = array.UpperBound(2) + 1;
    std::string text = std::to_string(first) + "x" + std::to_string(second) + " [";
    for (Long i = 0; i < first; ++i) {
        for (Long j = 0; j < second; ++j) {
            if (i + j > 0)
                text += ", ";
            text += Print(array.At(i, j));
        }
    }
    return text + "]";
}

/// The content behind the type; empty for Empty and Null, which are their own word.
std::string Content(const Value& value)
{
    switch (value.GetType()) {
    case ValueType::Empty:
    case ValueType::Null: return {};
    case ValueType::Boolean: return value.ToBoolean() ? "True" : "False";
    case ValueType::Integer: return std::to_string(value.ToInteger());
    case ValueType::Long: return std::to_string(value.ToLong());
    case ValueType::Double: return TextOf(value.ToDouble(), '.');
    case ValueType::Text: return Quoted(value.ToText());
    case ValueType::Object: return PrintObject(value.HeldObject());
    case ValueType::Array: return PrintArray(*value.ToArray());
    }
    return {};
}

std::string Join(std::string type, const std::string& content)
{
    return content.empty() ? type : type + " " + content;
}

} // namespace

std::string Print(const Value& value) { return Join(std::string(NameOf(value.GetType())), Content(value)); }

std::string Print(const Argument& argument)
{
    const std::string mark = argument.IsByReference() ? "&" : "";
    return Join(std::string(NameOf(argument.Get().GetType())) + mark, Content(argument.Get()));
}

} // namespace kova::scenario
