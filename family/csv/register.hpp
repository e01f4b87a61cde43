#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/csv/header.hpp"
#include "family/data/audit/author.hpp"

#include <functional>
#include <memory>
#include <span>

namespace kova::family {
class Database;
}

namespace kova::family::csv {

/// One import into a register. Of the database it reads what its lines are about, as they come.
class Import {
public:
    virtual ~Import() = default;

    virtual const std::vector<Title>& Titles() const = 0;
    /// Whether the line brings its own code.
    virtual bool HasCode(const Line& line) const = 0;
    /// Tells each of the lines all that speaks against it. Lines count as there for those after them.
    virtual void Check(std::span<Line> lines) = 0;
    /// Tells, before any line is checked, that the file changes the stored row of that key: what stands in it
    /// then, a text for each column that is written.
    virtual void Replace(family::Key, const std::vector<std::string>&) { }
    /// Has everybody else wait who would take the room that the lines checked so far take, until the
    /// transaction that is open ends.
    virtual void LockRoom() { }
    /// Writes a line that Check has found good, with its audit, in the transaction that is open.
    virtual void Write(Line& line, const family::Author& author) = 0;
};

using FieldsSink = std::function<void(const std::vector<std::string>& fields)>;

/// A kind of record that goes to and comes from files.
struct Register {
    /// As people name it in a command.
    std::string_view name;
    std::unique_ptr<Import> (*startImport)(family::Database& database, DateTime now);
    /// Hands over the names of the columns and then the fields of each record, by its code.
    void (*exportTo)(family::Database& database, const FieldsSink& sink);
    /// The table whose rows are counted for the progress.
    const char* table;
};

} // namespace kova::family::csv
