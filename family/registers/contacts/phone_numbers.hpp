#pragma once

#include <string>
#include <string_view>

namespace kova::family::registers {

/// Which numbers a channel can hold.
enum class PhoneKind {
    /// Nine digits behind the area code, the first of them a 9.
    Mobile,
    /// Eight digits behind the area code.
    Fixed,
    /// Either.
    Any,
};

/// A typed number as it is kept, or why it cannot be.
struct PhoneText {
    std::string kept;
    /// In lower case, with a full stop; empty where it is a number.
    std::string why;
};

/// A number of Brazil, however it is written, as "(11) 91234-5678", "(11) 3123-4567" or "0800 123 4567"; its
/// country's code and the 0 before an area code are taken off. One of another country begins with "+" and
/// stays as it is written.
PhoneText ReadPhone(std::string_view typed, PhoneKind kind);

/// Whether such an area code exists.
bool IsAreaCode(int code);

} // namespace kova::family::registers
