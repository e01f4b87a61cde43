#pragma once

#include "agenda/contracts/value.hpp"

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace kova {

/// One positional argument of a call: a value, or a variable of the caller that the callee may write.
class Argument {
public:
    template <class T>
    requires std::is_constructible_v<Value, T> Argument(T&& value) : value_(std::forward<T>(value)) { }

    const Value& Get() const { return value_; }
    bool IsByReference() const { return static_cast<bool>(assign_); }
    /// Whether the caller's variable takes values of every type. One by reference that does not keeps the
    /// type of its value.
    bool TakesEveryType() const { return takesEveryType_; }

    /// Writes the caller's variable, converted to the variable's type (failures 6, 13, 91, 94). On an
    /// argument by value it changes nothing for the caller, as a callee's own copy would.
    void Assign(const Value& value);

    /// Writes a variable and answers what it holds then.
    using Assigner = std::function<Value(const Value&)>;

private:
    friend Argument ByRef(Integer&);
    friend Argument ByRef(Long&);
    friend Argument ByRef(Double&);
    friend Argument ByRef(Text&);
    friend Argument ByRef(ObjectRef&);
    friend Argument ByRef(Value&);
    friend Argument ByRef(Value, Assigner, bool);

    Argument(Value value, Assigner assign, bool takesEveryType)
        : value_(std::move(value)), assign_(std::move(assign)), takesEveryType_(takesEveryType)
    {
    }

    Value value_;
    Assigner assign_;
    bool takesEveryType_ = false;
};

/// Hands a variable over by reference. It must outlive the call.
Argument ByRef(Integer& variable);
Argument ByRef(Long& variable);
Argument ByRef(Double& variable);
Argument ByRef(Text& variable);
Argument ByRef(ObjectRef& variable);
Argument ByRef(Value& variable);
/// A variable that is no C++ one: what it holds, and what writes it (Argument::Assign).
Argument ByRef(Value value, Argument::Assigner assign, bool takesEveryType);

/// What a component tells of one of its members.
struct Member {
    Text name;
    bool isMethod = false;
    bool isReadable = false;
    bool isWritable = false;

    bool operator==(const Member&) const = default;
};

/// A component of the product family, or the module's own public class: found by class name, used by
/// member name. Names are compared letter for letter.
class Component : public Object {
public:
    /// Reads a property. Fails with 438 where there is none of that name.
    virtual Value Get(std::string_view member) = 0;
    /// Writes a property. Fails with 438 where there is none of that name, 450 where it is read-only,
    /// 13 where the value is of a type the property cannot take.
    virtual void Set(std::string_view member, const Value& value) = 0;
    /// Calls a method. Fails with 438 where there is none of that name and with 450 on a wrong count
    /// of arguments. A method without a result answers Empty.
    virtual Value Call(std::string_view member, std::span<Argument> arguments) = 0;
    /// Its members, no two of them with names that differ by case alone. Empty where it cannot tell.
    virtual std::vector<Member> Members() const { return {}; }

    Value Call(std::string_view member) { return Call(member, std::span<Argument>()); }
    Value Call(std::string_view member, std::vector<Argument> arguments)
    {
        return Call(member, std::span<Argument>(arguments));
    }
};

using ComponentRef = std::shared_ptr<Component>;

/// Creates components by class name, such as "KOVA_N_Agenda.clsAgenda".
class ComponentService {
public:
    virtual ~ComponentService() = default;
    /// Fails with 429 where the class is not registered, its library cannot be loaded or the class
    /// refuses to be created; the text names the class and the cause.
    virtual ComponentRef CreateObject(std::string_view className) = 0;
};

/// The tabular result of a selection. Field names ignore case; rows and pages count from 1.
class RecordSet : public Object {
public:
    virtual Long RecordCount() const = 0;
    /// Number of columns.
    virtual int FieldCount() const = 0;
    /// Name of a column, counted from 0. Fails with 3265 outside.
    virtual Text FieldName(int index) const = 0;
    /// The current row's value of a field. Fails with 3265 where there is no such field and with 3021
    /// where there is no current row.
    virtual Value Field(std::string_view name) const = 0;
    virtual Value Field(int index) const = 0;

    /// True after the last row, and on an empty record set.
    virtual bool Eof() const = 0;
    /// True before the first row, and on an empty record set.
    virtual bool Bof() const = 0;
    /// Each move fails with 3021 on an empty record set; MoveNext also when Eof is already true, and
    /// MovePrevious when Bof is. Moving past an end only sets Eof or Bof.
    virtual void MoveFirst() = 0;
    virtual void MoveLast() = 0;
    virtual void MoveNext() = 0;
    virtual void MovePrevious() = 0;

    /// "FIELD [ASC|DESC], ..."; "" restores the original order. Sorting is stable, takes Null as
    /// the lowest value and lands on the first row. Allowed on an empty record set. Fails with 3265 on an
    /// unknown field.
    virtual Text Sort() const = 0;
    virtual void Sort(std::string_view order) = 0;

    /// Rows in a page; at least 1. Fails with 3001 below 1.
    virtual Long PageSize() const = 0;
    virtual void PageSize(Long rows) = 0;
    /// Full pages and a last short one; 0 where there is no row.
    virtual Long PageCount() const = 0;
    /// Page of the current row, from 1; 0 on an empty record set, -2 at Bof, -3 at Eof. Writing it
    /// moves to the first row of the page and fails with 3001 outside 1 to PageCount, with 3021 on an
    /// empty record set; the selection of a day's appointments takes the nearest page instead of 3001.
    virtual Long AbsolutePage() const = 0;
    virtual void AbsolutePage(Long page) = 0;
    /// Number of the current row, from 1; -1 on an empty record set, -2 at Bof, -3 at Eof.
    virtual Long AbsolutePosition() const = 0;
};

using RecordSetRef = std::shared_ptr<RecordSet>;

} // namespace kova
