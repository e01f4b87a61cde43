#pragma once

#include "agenda/contracts/support/member_tables.hpp"
#include "family/business/business_component.hpp"

namespace kova::family {

/// A business component by its tables. As its callers do not tell the two apart, reading a method without
/// arguments calls it, and calling a property without arguments reads it.
template <class Class> class ByName : public ByTables<Class, BusinessComponent> {
    using Tables = ByTables<Class, BusinessComponent>;

public:
    using Tables::Call;

    Value Get(std::string_view member) override
    {
        return Tables::HasProperty(member) ? Tables::Get(member)
                                           : Tables::Call(member, std::span<Argument>());
    }

    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        if (!Tables::HasProperty(member))
            return Tables::Call(member, arguments);
        if (!arguments.empty())
            throw Failure(FailureNumber::WrongArgumentCount);
        return Tables::Get(member);
    }

protected:
    using Tables::Tables;
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
