#pragma once

#include "agenda/contracts/business_services.hpp"

#include <cstddef>

namespace kova {

/// A method that takes `atLeast` to `atMost` arguments.
template <class Class> struct Method {
    std::string_view name;
    std::size_t atLeast;
    std::size_t atMost;
    Value (Class::*run)(std::span<Argument>);
};

/// A property; without `write` it is read-only, without `read` write-only.
template <class Class> struct Property {
    std::string_view name;
    Value (Class::*read)() const;
    void (Class::*write)(const Value&) = nullptr;
};

/// A component whose members stand in two tables, the static functions Methods() and Properties(), each a
/// std::span. Its ClassName is what failures call it.
template <class Class, class Base = Component> class ByTables : public Base {
public:
    using Base::Call;

    Value Get(std::string_view member) override
    {
        const Property<Class>* property = Find(Class::Properties(), member);
        if (!property || !property->read)
            throw NoSuchMember(member);
        return (Self().*property->read)();
    }

    void Set(std::string_view member, const Value& value) override
    {
        const Property<Class>* property = Find(Class::Properties(), member);
        if (!property)
            throw NoSuchMember(member);
        if (!property->write)
            throw Failure(FailureNumber::WrongArgumentCount);
        (Self().*property->write)(value);
    }

    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        const Method<Class>* method = Find(Class::Methods(), member);
        if (!method)
            throw NoSuchMember(member);
        if (arguments.size() < method->atLeast || arguments.size() > method->atMost)
            throw Failure(FailureNumber::WrongArgumentCount);
        return (Self().*method->run)(arguments);
    }

    /// Methods, then properties, as they stand in the tables.
    std::vector<Member> Members() const override
    {
        std::vector<Member> members;
        for (const Method<Class>& method : Class::Methods())
            members.push_back({Text(method.name), true, false, false});
        for (const Property<Class>& property : Class::Properties())
            members.push_back(
                {Text(property.name), false, property.read != nullptr, property.write != nullptr});
        return members;
    }

protected:
    using Base::Base;

    static bool HasProperty(std::string_view member) { return Find(Class::Properties(), member) != nullptr; }

private:
    Class& Self() { return static_cast<Class&>(*this); }

    template <class Row> static const Row* Find(std::span<const Row> rows, std::string_view name)
    {
        for (const Row& row : rows) {
            if (row.name == name)
                return &row;
        }
        return nullptr;
    }

    static Failure NoSuchMember(std::string_view member)
    {
        return {FailureNumber::NoSuchMember,
                Text(Class::ClassName) + " não aceita a propriedade ou método '" + Text(member) + "'."};
    }
};

} // namespace kova
