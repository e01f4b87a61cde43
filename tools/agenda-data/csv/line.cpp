#include "tools/agenda-data/csv/line.hpp"

#include "agenda/contracts/text.hpp"

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
    output_ << "linha " << line << ": " << what << "\n";
    ++count_;
    if (line != lastLine_)
        ++lines_;
    lastLine_ = line;
}

void Line::Refuse(std::string_view column, std::string_view value, std::string_view why)
{
    std::string what(column);
    what.append(" \"").append(Shown(value)).append("\": ").append(why);
    problems_.Add(number_, what);
}

void Line::Refuse(std::string_view column, std::string_view why)
{
    problems_.Add(number_, std::string(column).append(": ").append(why));
}

} // namespace kova::data
