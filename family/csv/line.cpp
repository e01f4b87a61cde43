#include "family/csv/line.hpp"

#include "agenda/contracts/text.hpp"

#include <algorithm>

namespace kova::family::csv {

namespace {

/// More of a value would hide what is said about it.
constexpr std::size_t LongestShownValue = 60;

std::string Shown(std::string_view value)
{
    const std::string shown = Left(value, LongestShownValue);
    return shown.size() < value.size() ? shown + "…" : shown;
}

} // namespace

std::string Problem::Told() const
{
    if (column.empty())
        return why;
    return column + (value.empty() ? "" : " \"" + value + "\"") + ": " + why;
}

void Problems::Add(Problem problem)
{
    untold_.push_back(std::move(problem));
    ++count_;
}

void Problems::TellAll()
{
    std::ranges::stable_sort(untold_, {}, &Problem::line);
    for (const Problem& problem : untold_) {
        tell_(problem);
        if (problem.line != lastLine_)
            ++lines_;
        lastLine_ = problem.line;
    }
    untold_.clear();
}

void Line::Refuse(std::string_view column, std::string_view value, std::string_view why)
{
    problems_.Add({number_, std::string(column), Shown(value), std::string(why)});
    good_ = false;
}

void Line::Refuse(std::string_view column, std::string_view why) { Refuse(column, {}, why); }

} // namespace kova::family::csv
