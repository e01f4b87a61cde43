#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/audit/import_lines.hpp"
#include "family/data/engine/long_work.hpp"

namespace kova::family {
class Database;
}

namespace kova::family::registers {

/// A row of an import that is not taken back.
struct KeptRow {
    /// "cliente 12 (José Peçanha)"
    std::string what;
    /// Why, and what can be done; sentences.
    std::string why;
};

/// What becomes of the rows that somebody has changed since, or that later work refers to.
enum class ChangedRows {
    /// Nothing at all is taken back then.
    Refuse,
    /// They stay as they are, and the others are taken back.
    Keep,
};

struct UndoneImport {
    enum class Outcome {
        Done,
        /// There is no import of that number, or none at all.
        Unknown,
        /// It was taken back before; `import.undone` tells by whom.
        UndoneBefore,
        /// Nothing was taken back, because of the rows in `kept`.
        Refused,
    };

    bool IsDone() const { return outcome == Outcome::Done; }

    Outcome outcome = Outcome::Done;
    ImportLine import{};
    /// Rows that are gone again, and those that have their former values.
    long long removed = 0, restored = 0;
    std::vector<KeptRow> kept{};
};

/// Takes an import back, the last of all where no number is given: rows that it made go, rows that it changed
/// get their former values, by the rules of their registers (judged beside each other as they will be), each
/// with its line in the audit, and one more for the whole. All in one transaction, for which other imports
/// and saves of registers wait. Rows whose newest line in the audit is another one, that stand otherwise than
/// the import left them, or that others refer to, speak against it. Fails with a DatabaseFailure, also where
/// the work is asked to end, and with RightDenied where the author may not change registers; nothing is taken
/// back then.
UndoneImport UndoImport(Database& database, std::optional<Key> number, ChangedRows changed,
                        const Author& author, const LongWork& work);

} // namespace kova::family::registers
