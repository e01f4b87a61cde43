#pragma once

#include "family/data/audit/author.hpp"
#include "family/history/line.hpp"

namespace kova::family {
class Database;
}

/// What a line tells is undone by a write of its own, by the rules of any other: the row gets back what it
/// had, where nothing of that was changed since. Both fail as FindLines, for an author who may not see the
/// history too, and as Database::With.
namespace kova::family::history {

/// What undoing a line would do.
struct UndoPlan {
    bool IsPossible() const { return why.empty(); }

    /// Why it cannot be undone, in sentences; else empty.
    std::string why;
    /// What will be done, in sentences, for a question.
    std::string what{};
};

/// Looks, and writes nothing: rules that a write asks may still refuse it.
UndoPlan PlanUndo(Database& database, const Author& author, const Line& line);

struct UndoAnswer {
    bool IsDone() const { return why.empty(); }

    /// Why nothing was undone, in sentences; else empty.
    std::string why{};
};

/// Undoes it, in a transaction of its own. The line that it leaves in the audit bears the code of the line
/// that it undoes.
UndoAnswer Undo(Database& database, const Author& author, const Line& line);

} // namespace kova::family::history
