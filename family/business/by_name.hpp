#pragma once

#include "family/business/business_component.hpp"

#include <span>
#include <string_view>

namespace kova::family {

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

/// Finds the members of a class by their names in its two tables, the static functions Methods() and
/// Properties(), each a std::span. As callers by name do not tell the two apart, reading a method
/// without arguments calls it, and calling a property without arguments reads it.
template <class Class> class ByName : public BusinessComponent {
public:
    using BusinessComponent::Call;

    Value Get(std::string_view member) override
    {
        if (const Property<Class>* property = Find(Class::Properties(), member))
            return Read(*property);
        return Call(member, std::span<Argument>());
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
        if (const Method<Class>* method = Find(Class::Methods(), member)) {
            if (arguments.size() < method->atLeast || arguments.size() > method->atMost)
                throw Failure(FailureNumber::WrongArgumentCount);
            return (Self().*method->run)(arguments);
        }
        const Property<Class>* property = Find(Class::Properties(), member);
        if (!property)
            throw NoSuchMember(member);
        if (!arguments.empty())
            throw Failure(FailureNumber::WrongArgumentCount);
        return Read(*property);
    }

protected:
    using BusinessComponent::BusinessComponent;

private:
    Class& Self() { return static_cast<Class&>(*this); }

    Value Read(const Property<Class>& property)
    {
        if (!property.read)
            throw NoSuchMember(property.name);
        return (Self().*property.read)();
    }

    template <class Member> static const Member* Find(std::span<const Member> members, std::string_view name)
    {
        for (const Member& member : members) {
            if (member.name == name)
                return &member;
        }
        return nullptr;
    }

    static Failure NoSuchMember(std::string_view member)
    {
        const Failure failure(FailureNumber::NoSuchMember);
        return {failure.Number(), failure.Description() + ": " + std::string(member)};
    }
};

/// The properties that every class with a selection has, for its table.
template <class Class>
inline constexpr Property<Class> SelectionProperties[] = {
    {"NumeroDoErro", &Class::NumeroDoErro},
    {"DescricaoDoErro", &Class::DescricaoDoErro},
    {"LocalDoErro", &Class::LocalDoErro},
    {"ResultadoDaSelecaoEmRecordSet", &Class::ResultadoDaSelecaoEmRecordSet},
};

} // namespace kova::family
