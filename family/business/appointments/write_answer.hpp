#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::family {

/// What a write of a business class answers, technical failures (status 1) aside.
struct WriteAnswer {
    static constexpr Integer Done = 0;
    static constexpr Integer Invalid = 2;
    static constexpr Integer Refused = 3;

    static WriteAnswer InvalidField(Text field, Text text)
    {
        return {Invalid, std::move(field), std::move(text)};
    }
    static WriteAnswer Refusal(Text text) { return {Refused, {}, std::move(text)}; }

    bool IsDone() const { return status == Done; }

    Integer status = Done;
    /// The field at fault, on Invalid.
    Text field;
    /// Why not, for the user.
    Text text;
    /// Key of the package that the appointment belongs to, or belonged to before it was deleted; 0 where it
    /// belongs to none.
    long long package = 0;
    /// Status of that appointment, or the one that it had when it was deleted.
    int appointmentStatus = 0;
    /// The version that an appointment has which was altered as a whole; 0 after every other write.
    long long version = 0;
};

} // namespace kova::family
