#pragma once

#include "agenda/contracts/support/member_tables.hpp"

#include <string>

namespace kova::host {

/// The session's user object, which the module passes on to the components: the properties Codigo (Long)
/// and Nome (Text), both read-only.
class SessionUser : public ByTables<SessionUser> {
public:
    static constexpr std::string_view ClassName = "O usuário da sessão";

    SessionUser(Long code, Text name);

    static std::span<const Method<SessionUser>> Methods() { return {}; }
    static std::span<const Property<SessionUser>> Properties();

private:
    Value Codigo() const { return code_; }
    Value Nome() const { return name_; }

    Long code_;
    Text name_;
};

} // namespace kova::host
