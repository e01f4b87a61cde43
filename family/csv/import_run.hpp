#pragma once

#include "family/csv/import_watch.hpp"
#include "family/csv/line_updates.hpp"
#include "family/csv/register.hpp"

#include <optional>
#include <unordered_set>

namespace kova::family::csv {

/// What becomes of a line that brings what is in the database already.
enum class Known {
    Refused,
    /// It changes the row that has its code; one that is only alike is refused.
    Updated,
    LeftOut,
};

/// One file on its way into a register. It is read more than once, so that nothing has to be kept of its
/// lines. Fails with Interrupted where the watch asks it to end.
class ImportRun {
public:
    /// `text` must outlive it. Updates go to a register of the shop only. `now` is the moment up to which
    /// appointments are over.
    ImportRun(const Register& into, std::string_view text, char separator, Known known, DateTime now,
              ImportWatch watch);

    /// Tells each thing that is wrong with the file, by its line, and its progress as that of the step. Reads
    /// only; what it was called for before is forgotten.
    void Check(Database& database, ImportStep step);
    /// Has everybody else wait who would take the room that the lines take, until the transaction that is
    /// open ends.
    void LockRoom() { import_->LockRoom(); }
    /// Writes the lines that Check has found good, first those that bring a code. What others have made
    /// impossible since then is told as a problem: nothing of it must be kept.
    void Write(Database& database, const Author& author);

    long long ProblemCount() const { return problems_.Count(); }
    long long ProblemLines() const { return problems_.Lines(); }
    /// Lines with a record in them, the header not counted.
    long long Records() const { return records_; }
    /// Those of them that bring the code of a stored row, those that change it, and those that are left out.
    long long Updated() const { return updated_; }
    long long Changing() const { return updates_ ? updates_->Changing() : 0; }
    long long LeftOut() const { return static_cast<long long>(leftOut_.size()); }
    /// What the updates change, a line of text for each field.
    std::string Changes() const { return updates_ ? updates_->Changes() : std::string(); }

private:
    bool ReadHeader();
    /// Calls `use` with the lines behind the header, so many at a time.
    template <class Use> void ForEachGroup(ImportStep step, Use use);
    /// Goes through the file once, so that its lines can be judged as the rows stand after it.
    void ExpectUpdates(Database& database);
    void CheckGroup(std::span<Line> lines);
    void CheckNew(std::vector<Line>& lines);
    void WriteLine(Line& line, const Author& author);
    void WriteThose(bool withCode, const Author& author);

    const Register& register_;
    std::string_view text_;
    char separator_;
    CsvReader reader_;
    DateTime now_;
    ImportWatch watch_;
    Problems problems_;
    std::unique_ptr<Import> import_;
    std::optional<Header> header_;
    Known known_;
    std::optional<LineUpdates> updates_;
    /// The numbers of the lines that are left out.
    std::unordered_set<long long> leftOut_;
    Database* database_ = nullptr;
    long long records_ = 0, withoutCode_ = 0, updated_ = 0;
};

} // namespace kova::family::csv
