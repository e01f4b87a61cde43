#pragma once

#include "agenda/contracts/support/component_library.hpp"
#include "agenda/contracts/support/member_tables.hpp"

namespace kova::component::test {

/// A component with one member of each kind.
class Vault : public ByTables<Vault> {
public:
    static constexpr std::string_view ClassName = "KOVA_T_Cofre.clsCofre";

    static std::span<const Method<Vault>> Methods();
    static std::span<const Property<Vault>> Properties();

    Value held;

private:
    Value Held() const { return held; }
    void Held(const Value& value) { held = value; }
    void Secret(const Value&) { }
    Value Currency() const { return "real"; }
    /// The first argument as it came.
    Value Same(std::span<Argument> arguments) { return arguments[0].Get(); }
    /// How many came.
    Value Counted(std::span<Argument> arguments) { return Long(arguments.size()); }
    /// Writes the second into the first.
    Value Written(std::span<Argument> arguments);
    /// Writes 7 into the first element of an array.
    Value Filled(std::span<Argument> arguments);
    /// Fails with a number and a text.
    Value Failed(std::span<Argument> arguments);
};

/// The library of the test program itself.
ComponentLibrary& Library();

} // namespace kova::component::test
