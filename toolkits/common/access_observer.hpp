#pragma once

#include "agenda/contracts/value.hpp"

#include <array>
#include <string_view>

namespace kova::toolkit {

/// One access to a member of the widget contract.
struct MemberAccess {
    std::string_view form;
    /// "" is the form itself.
    std::string_view control;
    /// Number within an indexed group, -1 where the control is in none.
    int controlIndex = -1;
    std::string_view member;
    /// How many of `indexes` count: 1 for ColWidth(8), 2 for TextMatrix(2, 8).
    int indexCount = 0;
    std::array<Long, 2> indexes{};
};

/// Sees every access of the forms to a member of the contract, before it acts. Each function may throw a
/// Failure, which reaches the caller as the member's own failure; nothing has changed then.
///
/// Accesses are reads and writes of properties and calls of methods. Not seen: what a widget is (Kind,
/// Name, Index), finding it (Control, Controls), attaching handlers, and what the user does.
class AccessObserver {
public:
    virtual ~AccessObserver() = default;

    virtual void Read(const MemberAccess& access) = 0;
    /// Text, colours and numbers come as their own type, twips as Double.
    virtual void Write(const MemberAccess& access, const Value& value) = 0;
    /// `argument` is the method's first argument, Empty where it has none: AddItem, Clear, SetFocus, Show.
    virtual void Call(const MemberAccess& access, const Value& argument) = 0;
};

} // namespace kova::toolkit
