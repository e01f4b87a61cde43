#pragma once

#include "agenda/contracts/failure.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace kova {

enum class ValueType { Empty, Null, Boolean, Integer, Long, Double, Text, Object, Array };

using Integer = std::int16_t;
using Long = std::int32_t;
using Double = double;
/// Text is UTF-8; lengths, cuts and limits count characters (see text.hpp).
using Text = std::string;

/// Base of everything that a Value can refer to: components, record sets, the session's user.
class Object {
public:
    virtual ~Object() = default;

protected:
    Object() = default;
    Object(const Object&) = default;
    Object& operator=(const Object&) = default;
};

using ObjectRef = std::shared_ptr<Object>;

struct Empty {
    friend bool operator==(Empty, Empty) { return true; }
};
struct Null {
    friend bool operator==(Null, Null) { return true; }
};

class Array;
using ArrayRef = std::shared_ptr<Array>;

/// The value that crosses the business border. It remembers its type: the border is typed although
/// members are found by name.
class Value {
public:
    using Type = ValueType;

    Value() = default;
    Value(Empty) { }
    Value(Null value) : held_(value) { }
    Value(Integer value) : held_(value) { }
    Value(Long value) : held_(value) { }
    Value(Double value) : held_(value) { }
    Value(Text value) : held_(std::move(value)) { }
    Value(std::string_view value) : held_(Text(value)) { }
    Value(const char* value) : held_(Text(value)) { }
    template <class T>
    requires std::is_same_v<T, bool> Value(T value) : held_(value) { }
    template <class T>
    requires std::is_base_of_v<Object, T> Value(std::shared_ptr<T> value) : held_(ObjectRef(std::move(value)))
    {
    }
    Value(ArrayRef value) : held_(std::move(value)) { }

    Type GetType() const { return static_cast<Type>(held_.index()); }
    bool IsEmpty() const { return GetType() == Type::Empty; }
    bool IsNull() const { return GetType() == Type::Null; }

    /// Conversions. Empty reads as 0, False and "". Null fails with 94; a text that is no number, an
    /// object or an array fails with 13; a number outside the target's range fails with 6. Halves
    /// round to the even neighbour. True is -1.
    bool ToBoolean() const;
    Integer ToInteger() const;
    Long ToLong() const;
    Double ToDouble() const;
    /// Numbers read with a decimal comma and no thousands mark; True is "Verdadeiro".
    Text ToText() const;

    /// The object itself. Fails with 91 where no object is held (Empty, a dropped reference), with 94 on Null
    /// and with 13 where the value is of another type or the object of another class.
    ObjectRef ToObject() const;
    template <class T> std::shared_ptr<T> ToObject() const
    {
        auto object = std::dynamic_pointer_cast<T>(ToObject());
        if (!object)
            throw Failure(FailureNumber::TypeMismatch);
        return object;
    }
    /// The object held, which may be null; null too where none is held. Never fails.
    ObjectRef HeldObject() const;
    /// Fails with 13 where no array is held.
    ArrayRef ToArray() const;

    /// Equal when type and content are equal; objects and arrays when they are the same one.
    friend bool operator==(const Value& a, const Value& b) { return a.held_ == b.held_; }

private:
    std::variant<Empty, Null, bool, Integer, Long, Double, Text, ObjectRef, ArrayRef> held_;
};

/// A table of values with two dimensions, each counted from 0 to its upper bound.
class Array {
public:
    /// Fails with 9 where a bound is below 0.
    Array(Long upperBoundOfFirst, Long upperBoundOfSecond);

    /// Fails with 9 where `dimension` is neither 1 nor 2.
    Long UpperBound(int dimension) const;
    /// Fails with 9 outside the bounds. A fresh element is Empty.
    Value& At(Long first, Long second);
    const Value& At(Long first, Long second) const;

private:
    std::size_t Position(Long first, Long second) const;

    Long upperBoundOfFirst_;
    Long upperBoundOfSecond_;
    std::vector<Value> elements_;
};

/// The word that names a type in messages and transcripts: "Integer", "Text" and so on.
std::string_view NameOf(ValueType type);

} // namespace kova
