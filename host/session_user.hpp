#pragma once

#include "agenda/contracts/business_services.hpp"

#include <string>

namespace kova::host {

/// The session's user object, which the module passes on to the components: the properties Codigo (Long)
/// and Nome (Text), both read-only.
class SessionUser : public Component {
public:
    SessionUser(Long code, Text name);

    Value Get(std::string_view member) override;
    void Set(std::string_view member, const Value& value) override;
    Value Call(std::string_view member, std::span<Argument> arguments) override;
    using Component::Call;

private:
    Long code_;
    Text name_;
};

} // namespace kova::host
