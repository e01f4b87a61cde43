#include "tools/agenda-data/csv/line.hpp"

#include "agenda/contracts/text.hpp"

#include <algorithm>

namespace kova::data {

namespace {

/// More of a value would hide what is said about it.
constexpr std::size_t LongestShownValue = 60;

std::string Shown(std::string_view value)
{
    const std::string shown = Left(value, LongestShownValue);
    return shown.size() < value.size() ? shown + "…" : shown;
}

} // namespace

void Problems::Add(long long line, std::string_view what)
{
    untold_.push_back({line, std::string(what)});
    ++count_;
}

void Problems::Tell()
{
    std::ranges::stable_sort(untold_, {}, &Problem::line);
    for (const Problem& problem : untold_) {
        output_ << "linha " << problem.line << ": " << problem.what << "\n";
        if (problem.line != lastLine_)
            ++lines_;
        lastLine_ = problem.line;
    }
    untold_.clear();
}

void Line::Refuse(std::string_view column, std::string_view value, std::string_view why)
{
    std::string what(column);
    what.append(" \"").append(Shown(value)).append("\": ").append(why);
    problems_.Add(number_, what);
    good_ = false;
}

void Line::Refuse(std::string_view column, std::string_view why)
{
    problems_.Add(number_, std::string(column).append(": ").append(why));
    good_ = false;
}

} // namespace kova::data
