#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace kova::family::privacy {

/// What a column holds, as far as customers are concerned.
enum class Holds {
    /// Nothing about a person: keys, what the shop sells, when it is open.
    NoPerson,
    /// The shop itself and those who work there.
    Staff,
    /// Something about a customer that names nobody by itself: exported, and kept when the customer is made
    /// anonymous.
    Figure,
    /// Exported; afterwards a name that is nobody's, where there was one.
    Name,
    /// Exported; empty afterwards.
    Text,
    /// The same of a column that may be Null, and is so afterwards.
    OptionalText,
    /// Composed of others, for searching, showing and checking: not exported, and composed anew afterwards.
    Composed,
    /// Values of rows, as the audit keeps them: exported and cleaned as the columns that they are of.
    ValuesOfRows,
};

/// Columns of a table that hold the same, their names separated by blanks.
struct ColumnsThatHold {
    std::string_view table;
    Holds holds;
    std::string_view columns;
};

/// Every column of every table of the newest schema.
std::span<const ColumnsThatHold> AllColumns();

/// Whether a person whose data it is gets to see it. A column that is not listed is shown.
bool IsExported(std::string_view table, std::string_view column);

/// Nothing for a column that is not listed.
std::optional<Holds> HoldsOf(std::string_view table, std::string_view column);

} // namespace kova::family::privacy
