#pragma once

#include "family/csv/header.hpp"
#include "family/registers/description/register.hpp"

#include <functional>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace kova::family::csv {

/// The lines of a file that change stored rows of a register by their codes: what a column of the file holds
/// is typed into the row, an empty cell empties the field, and fields without a column stay. Rows are judged
/// as they stand beside each other after the file.
class LineUpdates {
public:
    using Texts = family::registers::Texts;
    /// What a row will be.
    using OnChange = std::function<void(family::Key key, const Texts& texts)>;

    /// `header` and `titles` outlive it. `onChange` is told of each row that is expected.
    LineUpdates(const family::registers::Register& of, const Header& header, const std::vector<Title>& titles,
                OnChange onChange)
        : register_(of), header_(header), titles_(titles), onChange_(std::move(onChange))
    {
    }

    /// Whether the file has a column by which rows are judged among others: all its lines are to be expected
    /// before the first is taken.
    bool Expects() const;
    /// Notes what a line makes of its row; tells nothing.
    void Expect(family::Database& database, const Line& line);
    /// Whether the line has the code of a stored row. Then it is checked: what is wrong is told to it.
    bool Take(family::Database& database, Line& line);
    /// Whether Take has taken it.
    bool Has(const Line& line) const { return keys_.contains(line.Number()); }
    /// Writes a line that was taken and changes something, in the transaction that is open. What others have
    /// made impossible meanwhile is told to the line.
    void Write(family::Database& database, Line& line, const family::Author& author) const;

    /// Lines that change something.
    long long Changing() const { return static_cast<long long>(changing_.size()); }
    /// What they change, a line of text for each field.
    const std::string& Changes() const { return changes_; }

private:
    /// The stored row that the line has the code of, and the code.
    std::pair<family::Key, std::optional<Texts>> Stored(family::Database& database, const Line& line) const;
    void Check(family::Database& database, family::Key key, const Texts& before, Line& line);
    void RefuseWhatIsNoField(Line& line) const;
    Texts TypedOver(Texts texts, const Line& line) const;
    /// The field of a column; nothing where it only comes with new rows.
    std::optional<std::size_t> FieldOf(std::size_t column) const;
    void Refuse(const family::registers::SaveAnswer& answer, const Texts& typed, Line& line) const;

    const family::registers::Register& register_;
    const Header& header_;
    const std::vector<Title>& titles_;
    OnChange onChange_;
    /// What the lines make of their rows; empty where none are expected.
    family::registers::RowsToBe toBe_;
    /// Of the lines that were taken.
    std::unordered_map<long long, family::Key> keys_;
    /// The line that changes a row.
    std::unordered_map<family::Key, long long> lines_;
    /// Lines that change something.
    std::unordered_set<long long> changing_;
    std::string changes_;
};

} // namespace kova::family::csv
