#pragma once

#include "tools/agenda-data/command.hpp"
#include "tools/agenda-data/csv/register.hpp"
#include "tools/agenda-data/progress.hpp"

#include <optional>

namespace kova::data {

/// One file on its way into a register. It is read more than once, so that nothing has to be kept of its
/// lines.
class ImportRun {
public:
    /// `text` must outlive it.
    ImportRun(const Register& into, std::string_view text, char separator, Surroundings& surroundings);

    /// Tells each thing that is wrong with the file, by its line, and its progress as that of `what`. Reads
    /// only; what it was called for before is forgotten.
    void Check(family::Database& database, const char* what);
    /// Has everybody else wait who would take the room that the lines take, until the transaction that is
    /// open ends.
    void LockRoom() { import_->LockRoom(); }
    /// Writes the lines that Check has found good, first those that bring a code.
    void Write(family::Database& database, const family::Author& author);

    long long ProblemCount() const { return problems_.Count(); }
    long long ProblemLines() const { return problems_.Lines(); }
    /// Lines with a record in them, the header not counted.
    long long Records() const { return records_; }

private:
    bool ReadHeader();
    /// Calls `use` with the lines behind the header, so many at a time.
    template <class Use> void ForEachGroup(const char* what, Use use);
    void CheckGroup(std::span<Line> lines);
    void WriteThose(bool withCode, const family::Author& author);

    const Register& register_;
    std::string_view text_;
    char separator_;
    CsvReader reader_;
    Surroundings& surroundings_;
    Problems problems_;
    std::unique_ptr<Import> import_;
    std::optional<Header> header_;
    long long records_ = 0, withoutCode_ = 0;
};

} // namespace kova::data
