#pragma once

#include "component/windows/foreign.hpp"

namespace kova::component {

/// An object of another maker as a component. Its members are known to it alone: it lists none.
class ForeignComponent : public Component, public Foreign {
public:
    explicit ForeignComponent(Held<IDispatch> dispatch) : Foreign(std::move(dispatch)) { }

    using Component::Call;
    Value Get(std::string_view member) override { return Read(member); }
    void Set(std::string_view member, const Value& value) override { Write(member, value); }
    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        return Run(member, arguments);
    }
};

} // namespace kova::component
