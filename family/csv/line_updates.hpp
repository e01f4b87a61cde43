#pragma once

#include "family/csv/header.hpp"
#include "family/registers/description/register.hpp"

#include <functional>
#include <unordered_map>
#include <unordered_set>

namespace kova::family::csv {

/// The lines of a file that change stored rows of a register by their codes: what a column of the file holds
/// is typed into the row, an empty cell empties the field, and fields without a column stay.
class LineUpdates {
public:
    using Texts = family::registers::Texts;
    /// What a row will be.
    using OnChange = std::function<void(family::Key key, const Texts& texts)>;

    /// `header` and `titles` outlive it. `onChange` is told of each line that can be written.
    LineUpdates(const family::registers::Register& of, const Header& header, const std::vector<Title>& titles,
                OnChange onChange)
        : register_(of), header_(header), titles_(titles), onChange_(std::move(onChange))
    {
    }

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
    void Check(family::Database& database, family::Key key, const Texts& before, Line& line);
    Texts TypedOver(Texts texts, Line& line) const;
    void Refuse(const family::registers::SaveAnswer& answer, const Texts& typed, Line& line) const;

    const family::registers::Register& register_;
    const Header& header_;
    const std::vector<Title>& titles_;
    OnChange onChange_;
    /// Of the lines that were taken.
    std::unordered_map<long long, family::Key> keys_;
    /// The line that changes a row.
    std::unordered_map<family::Key, long long> lines_;
    /// Lines that change something.
    std::unordered_set<long long> changing_;
    std::string changes_;
};

} // namespace kova::family::csv
