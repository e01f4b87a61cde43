#pragma once

#include "agenda/contracts/support/member_tables.hpp"

#include <string>

namespace kova::host {

/// The session's user object, which the module passes on to the components: the properties Codigo (Long)
/// and Nome (Text), both read-only. It stays the same object where somebody else takes the desk over.
class SessionUser : public ByTables<SessionUser> {
public:
    static constexpr std::string_view ClassName = "O usuário da sessão";

    SessionUser(Long code, Text name);

    /// From now on somebody else is at the desk.
    void Become(Long code, Text name);
    Long Code() const { return code_; }
    const Text& Name() const { return name_; }

    static std::span<const Method<SessionUser>> Methods() { return {}; }
    static std::span<const Property<SessionUser>> Properties();

private:
    Value Codigo() const { return code_; }
    Value Nome() const { return name_; }

    Long code_;
    Text name_;
};

} // namespace kova::host
