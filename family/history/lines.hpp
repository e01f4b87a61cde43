#pragma once

#include "family/data/audit/author.hpp"
#include "family/history/filter.hpp"
#include "family/history/line.hpp"
#include "family/history/line_statement.hpp"

#include <optional>

namespace kova::family {
class Database;
}

/// What the audit tells, found by indices however long it is. Everything fails with RightDenied for an author
/// who may not see the history, which stands in the audit then, and as Database::With.
namespace kova::family::history {

/// Where lines are looked for.
struct Audit {
    /// Of a shop alone wherever nothing else is said.
    Audit(Database& database, Database* withArchive = nullptr) : shop(database), archive(withArchive) { }

    Database& shop;
    /// One that can be searched; Null where it is left out, or there is none.
    Database* archive;
};

/// `most` lines behind that one, or the first ones; the last that was written first.
Lines FindLines(const Audit& audit, const Author& author, const Filter& filter,
                const std::optional<Line>& behind, std::size_t most);

/// The line of that code; nothing where there is none.
std::optional<Line> FindLine(Database& database, const Author& author, Key code);

/// The same for those who have asked for the right.
std::optional<Line> ReadLine(Database& database, Key code);

/// Everybody who has written something, as the audit has them, in the order of the texts.
std::vector<std::string> FindWriters(const Audit& audit, const Author& author);

} // namespace kova::family::history
