#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace kova::data {

/// Writes each thing that is wrong as a line of its own, with its line of the file, and counts them.
class Problems {
public:
    explicit Problems(std::ostream& output) : output_(output) { }

    /// Kept until the next Tell.
    void Add(long long line, std::string_view what);
    /// Writes what was added since the last time, in the order of the file. What is added later is about
    /// later lines.
    void Tell();

    long long Count() const { return count_; }
    /// Lines with at least one that is told.
    long long Lines() const { return lines_; }

private:
    struct Problem {
        long long line;
        std::string what;
    };

    std::ostream& output_;
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

} // namespace kova::data
