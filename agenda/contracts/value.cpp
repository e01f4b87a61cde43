#include "agenda/contracts/value.hpp"

#include "agenda/contracts/text.hpp"

#include <algorithm>

namespace kova {

namespace {

[[noreturn]] void FailWithTypeMismatch() { throw Failure(FailureNumber::TypeMismatch); }

Double NumberOf(const Text& text)
{
    if (!IsNumeric(text))
        FailWithTypeMismatch();
    Text pointed = text;
    std::replace(pointed.begin(), pointed.end(), ',', '.');
    return Val(pointed);
}

bool TruthOf(const Text& text)
{
    const Text word = LowerCase(Trim(text));
    if (word == "verdadeiro" || word == "true")
        return true;
    if (word == "falso" || word == "false")
        return false;
    return NumberOf(text) != 0;
}

/// Each conversion is a set of overloads, one for every type that a value can hold; what a conversion
/// cannot take ends here.
struct Refusals {
    template <class Result> static Result Refuse(const Null&) { throw Failure(FailureNumber::UseOfNull); }
    template <class Result> static Result Refuse(const ObjectRef&) { FailWithTypeMismatch(); }
    template <class Result> static Result Refuse(const ArrayRef&) { FailWithTypeMismatch(); }
};

struct BooleanReader {
    bool operator()(Empty) const { return false; }
    bool operator()(bool value) const { return value; }
    bool operator()(Integer value) const { return value != 0; }
    bool operator()(Long value) const { return value != 0; }
    bool operator()(Double value) const { return value != 0; }
    bool operator()(const Text& value) const { return TruthOf(value); }
    template <class T> bool operator()(const T& value) const { return Refusals::Refuse<bool>(value); }
};

struct LongReader {
    Long operator()(Empty) const { return 0; }
    Long operator()(bool value) const { return value ? -1 : 0; }
    Long operator()(Integer value) const { return value; }
    Long operator()(Long value) const { return value; }
    Long operator()(Double value) const { return RoundToLong(value); }
    Long operator()(const Text& value) const { return RoundToLong(NumberOf(value)); }
    template <class T> Long operator()(const T& value) const { return Refusals::Refuse<Long>(value); }
};

struct DoubleReader {
    Double operator()(Empty) const { return 0; }
    Double operator()(bool value) const { return value ? -1 : 0; }
    Double operator()(Integer value) const { return value; }
    Double operator()(Long value) const { return value; }
    Double operator()(Double value) const { return value; }
    Double operator()(const Text& value) const { return NumberOf(value); }
    template <class T> Double operator()(const T& value) const { return Refusals::Refuse<Double>(value); }
};

struct TextReader {
    Text operator()(Empty) const { return {}; }
    Text operator()(bool value) const { return value ? "Verdadeiro" : "Falso"; }
    Text operator()(Integer value) const { return std::to_string(value); }
    Text operator()(Long value) const { return std::to_string(value); }
    Text operator()(Double value) const { return TextOf(value); }
    Text operator()(const Text& value) const { return value; }
    template <class T> Text operator()(const T& value) const { return Refusals::Refuse<Text>(value); }
};

} // namespace

bool Value::ToBoolean() const { return std::visit(BooleanReader(), held_); }
Integer Value::ToInteger() const { return Checked(ToLong()); }
Long Value::ToLong() const { return std::visit(LongReader(), held_); }
Double Value::ToDouble() const { return std::visit(DoubleReader(), held_); }
Text Value::ToText() const { return std::visit(TextReader(), held_); }

ObjectRef Value::HeldObject() const
{
    const auto* object = std::get_if<ObjectRef>(&held_);
    return object ? *object : nullptr;
}

ObjectRef Value::ToObject() const
{
    if (IsEmpty())
        throw Failure(FailureNumber::NoObject);
    if (IsNull())
        throw Failure(FailureNumber::UseOfNull);
    const auto* object = std::get_if<ObjectRef>(&held_);
    if (!object)
        FailWithTypeMismatch();
    if (!*object)
        throw Failure(FailureNumber::NoObject);
    return *object;
}

ArrayRef Value::ToArray() const
{
    const auto* array = std::get_if<ArrayRef>(&held_);
    if (!array || !*array)
        FailWithTypeMismatch();
    return *array;
}

namespace {

std::size_t ElementCount(Long upperBoundOfFirst, Long upperBoundOfSecond)
{
    if (upperBoundOfFirst < 0 || upperBoundOfSecond < 0)
        throw Failure(FailureNumber::IndexOutOfRange);
    return (static_cast<std::size_t>(upperBoundOfFirst) + 1)
        * (static_cast<std::size_t>(upperBoundOfSecond) + 1);
}

} // namespace

Array::Array(Long upperBoundOfFirst, Long upperBoundOfSecond)
    : upperBoundOfFirst_(upperBoundOfFirst),
      upperBoundOfSecond_(upperBoundOfSecond),
      elements_(ElementCount(upperBoundOfFirst, upperBoundOfSecond))
{
}

Long Array::UpperBound(int dimension) const
{
    if (dimension != 1 && dimension != 2)
        throw Failure(FailureNumber::IndexOutOfRange);
    return dimension == 1 ? upperBoundOfFirst_ : upperBoundOfSecond_;
}

Value& Array::At(Long first, Long second) { return elements_[Position(first, second)]; }
const Value& Array::At(Long first, Long second) const { return elements_[Position(first, second)]; }

std::size_t Array::Position(Long first, Long second) const
{
    if (first < 0 || first > upperBoundOfFirst_ || second < 0 || second > upperBoundOfSecond_)
        throw Failure(FailureNumber::IndexOutOfRange);
    return static_cast<std::size_t>(first) * (static_cast<std::size_t>(upperBoundOfSecond_) + 1)
        + static_cast<std::size_t>(second);
}

std::string_view NameOf(ValueType type)
{
    switch (type) {
    case ValueType::Empty: return "Empty";
    case ValueType::Null: return "Null";
    case ValueType::Boolean: return "Boolean";
    case ValueType::Integer: return "Integer";
    case ValueType::Long: return "Long";
    case ValueType::Double: return "Double";
    case ValueType::Text: return "Text";
    case ValueType::Object: return "Object";
    case ValueType::Array: return "Array";
    }
    return "Value";
}

} // namespace kova
