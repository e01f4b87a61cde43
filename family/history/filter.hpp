#pragma once

#include "family/data/engine/key.hpp"

#include <string>

namespace kova::family::history {

/// Whose history it is.
struct Subject {
    enum class Kind {
        /// All that was written.
        Everything,
        /// One row of a table. An appointment's pre-sales belong to it.
        Row,
        /// A customer with the animals and appointments, also those that are gone.
        Customer,
        /// What a user has done, and what was done with the user.
        User,
        /// The appointments that are, or were, booked for a day.
        BookedDay,
    };

    Kind kind = Kind::Everything;
    /// Of a row.
    std::string table{};
    /// Of a row, a customer or a user.
    Key key = 0;
    /// "yyyy-mm-dd"
    std::string day{};

    bool operator==(const Subject&) const = default;
};

/// The kinds of acts that are looked for beside those of the audit (audit_operation).
inline constexpr const char* Cancellation = "cancelamento";

/// Which lines; all of it applies together, and what is empty is no condition.
struct Filter {
    Subject subject{};
    /// As the audit has it, "CODE - NAME".
    std::string user{};
    /// One of audit_operation, or Cancellation.
    std::string operation{};
    std::string table{};
    /// Days of the act, both included, "yyyy-mm-dd".
    std::string from{}, to{};
    /// Words, or their beginnings, that are all among what the line tells, case and accents aside; a number
    /// is the key of the row.
    std::string text{};

    bool operator==(const Filter&) const = default;
};

} // namespace kova::family::history
