#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kova::family::csv {

/// A thing that is wrong with a file.
struct Problem {
    /// Of the file, from 1.
    long long line = 0;
    /// Empty where it is about the line, or the file, as a whole.
    std::string column;
    /// What stands in the column, cut where it is long; nothing is quoted where nothing is there.
    std::string value;
    /// In lower case, with a full stop.
    std::string why;

    /// "Situação "x": não é conhecido."
    std::string Told() const;
};

/// Collects what is wrong with the lines of a file, and counts it.
class Problems {
public:
    using Tell = std::function<void(const Problem& problem)>;

    explicit Problems(Tell tell) : tell_(std::move(tell)) { }

    /// Kept until the next TellAll.
    void Add(Problem problem);
    void Add(long long line, std::string_view why) { Add({line, {}, {}, std::string(why)}); }
    /// Tells what was added since the last time, in the order of the file. What is added later is about
    /// later lines.
    void TellAll();

    long long Count() const { return count_; }
    /// Lines with at least one that is told.
    long long Lines() const { return lines_; }

private:
    Tell tell_;
    std::vector<Problem> untold_;
    long long count_ = 0, lines_ = 0, lastLine_ = 0;
};

/// A record of the file by the columns of its register. Texts are clean: no control characters, no blanks
/// at the ends; a column that the file does not have is empty.
class Line {
public:
    Line(long long number, std::vector<std::string> cells, Problems& problems)
        : number_(number), cells_(std::move(cells)), problems_(problems)
    {
    }

    long long Number() const { return number_; }
    /// Whether nothing was refused so far.
    bool IsGood() const { return good_; }
    const std::string& Cell(std::size_t column) const { return cells_[column]; }

    /// From now on what is in the database already is no reason to refuse the line: it is left out.
    void LeaveOutStored() { leavesOutStored_ = true; }
    /// Whether it is left out, which is nothing wrong with it.
    bool IsLeftOut() const { return leftOut_; }
    /// Tells that what it brings is in the database already. True where the line is left out for it; else it
    /// is to be refused.
    bool IsStored()
    {
        leftOut_ = leftOut_ || leavesOutStored_;
        return leavesOutStored_;
    }

    /// Tells that the line cannot be imported. With a value it is named too.
    void Refuse(std::string_view column, std::string_view value, std::string_view why);
    void Refuse(std::string_view column, std::string_view why);

private:
    long long number_;
    std::vector<std::string> cells_;
    Problems& problems_;
    bool good_ = true;
    bool leavesOutStored_ = false, leftOut_ = false;
};

} // namespace kova::family::csv
