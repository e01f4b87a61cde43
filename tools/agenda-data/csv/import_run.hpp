#pragma once

#include "tools/agenda-data/command.hpp"
#include "tools/agenda-data/csv/line_updates.hpp"
#include "tools/agenda-data/csv/register.hpp"
#include "tools/agenda-data/progress.hpp"

#include <optional>
#include <unordered_set>

namespace kova::data {

/// What becomes of a line that brings what is in the database already.
enum class Known {
    Refused,
    /// It changes the row that has its code; one that is only alike is refused.
    Updated,
    LeftOut,
};

/// One file on its way into a register. It is read more than once, so that nothing has to be kept of its
/// lines.
class ImportRun {
public:
    /// `text` must outlive it. Updates go to a register of the shop only.
    ImportRun(const Register& into, std::string_view text, char separator, Known known,
              Surroundings& surroundings);

    /// Tells each thing that is wrong with the file, by its line, and its progress as that of `what`. Reads
    /// only; what it was called for before is forgotten.
    void Check(family::Database& database, const char* what);
    /// Has everybody else wait who would take the room that the lines take, until the transaction that is
    /// open ends.
    void LockRoom() { import_->LockRoom(); }
    /// Writes the lines that Check has found good, first those that bring a code. What others have made
    /// impossible since then is told as a problem: nothing of it must be kept.
    void Write(family::Database& database, const family::Author& author);

    long long ProblemCount() const { return problems_.Count(); }
    long long ProblemLines() const { return problems_.Lines(); }
    /// Lines with a record in them, the header not counted.
    long long Records() const { return records_; }
    /// Those of them that change a stored row, and those that are left out.
    long long Updated() const { return updated_; }
    long long Changing() const { return updates_ ? updates_->Changing() : 0; }
    /// What the updates change, a line of text for each field.
    std::string Changes() const { return updates_ ? updates_->Changes() : std::string(); }
    long long LeftOut() const { return static_cast<long long>(leftOut_.size()); }

private:
    bool ReadHeader();
    /// Calls `use` with the lines behind the header, so many at a time.
    template <class Use> void ForEachGroup(const char* what, Use use);
    void CheckGroup(std::span<Line> lines);
    void CheckNew(std::vector<Line>& lines);
    void WriteLine(Line& line, const family::Author& author);
    void WriteThose(bool withCode, const family::Author& author);

    const Register& register_;
    std::string_view text_;
    char separator_;
    CsvReader reader_;
    Surroundings& surroundings_;
    Problems problems_;
    std::unique_ptr<Import> import_;
    std::optional<Header> header_;
    Known known_;
    std::optional<LineUpdates> updates_;
    /// The numbers of the lines that are left out.
    std::unordered_set<long long> leftOut_;
    family::Database* database_ = nullptr;
    long long records_ = 0, withoutCode_ = 0, updated_ = 0;
};

} // namespace kova::data
