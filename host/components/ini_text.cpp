#include "host/components/ini_text.hpp"

#include <algorithm>

namespace kova::host {

namespace {

constexpr std::string_view Blanks = " \t\v";
constexpr std::string_view LineEnd = "\r\n";

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::string_view WithoutLineEnd(std::string_view line) { return line.substr(0, line.find_first_of(LineEnd)); }

char Folded(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsSameName(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char left, char right) { return Folded(left) == Folded(right); });
}

/// The section that a line opens.
std::optional<std::string_view> SectionOf(std::string_view line)
{
    const std::string_view text = Trimmed(WithoutLineEnd(line));
    if (!text.starts_with('['))
        return std::nullopt;
    return Trimmed(text.substr(1, text.find(']') == std::string_view::npos ? text.npos : text.find(']') - 1));
}

struct KeyLine {
    std::string_view key;
    std::string_view value;
};

std::optional<KeyLine> KeyLineOf(std::string_view line)
{
    const std::string_view text = Trimmed(WithoutLineEnd(line));
    const auto equals = text.find('=');
    if (text.starts_with(';') || equals == std::string_view::npos)
        return std::nullopt;
    return KeyLine{Trimmed(text.substr(0, equals)), Trimmed(text.substr(equals + 1))};
}

std::string_view Unquoted(std::string_view value)
{
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// Length of the first line with its end: CR LF, CR or LF.
std::size_t FirstLineLength(std::string_view text)
{
    const auto end = text.find_first_of(LineEnd);
    if (end == std::string_view::npos)
        return text.size();
    return end + (text.substr(end).starts_with(LineEnd) ? 2 : 1);
}

std::string KeyLineText(std::string_view key, std::string_view value)
{
    return std::string(key).append("=").append(value).append(LineEnd);
}

} // namespace

IniText::IniText(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = FirstLineLength(text);
        lines_.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
}

std::optional<IniText::Range> IniText::FindSection(std::string_view section) const
{
    const auto opens = [section](const std::string& line) {
        const auto name = SectionOf(line);
        return name && IsSameName(*name, section);
    };
    const auto header = std::find_if(lines_.begin(), lines_.end(), opens);
    if (header == lines_.end())
        return std::nullopt;
    const auto next = std::find_if(header + 1, lines_.end(),
                                   [](const std::string& line) { return SectionOf(line).has_value(); });
    return Range{static_cast<std::size_t>(header - lines_.begin()) + 1,
                 static_cast<std::size_t>(next - lines_.begin())};
}

std::optional<std::size_t> IniText::FindKey(Range range, std::string_view key) const
{
    for (std::size_t at = range.begin; at < range.end; ++at) {
        const auto line = KeyLineOf(lines_[at]);
        if (line && IsSameName(line->key, key))
            return at;
    }
    return std::nullopt;
}

std::size_t IniText::BehindLastKey(Range range) const
{
    std::size_t at = range.end;
    while (at > range.begin && !KeyLineOf(lines_[at - 1]))
        --at;
    return at;
}

std::optional<std::string> IniText::Value(std::string_view section, std::string_view key) const
{
    const auto range = FindSection(section);
    if (!range)
        return std::nullopt;
    const auto at = FindKey(*range, key);
    if (!at)
        return std::nullopt;
    return std::string(Unquoted(KeyLineOf(lines_[*at])->value));
}

void IniText::SetValue(std::string_view section, std::string_view key, std::string_view value)
{
    const auto range = FindSection(section);
    if (!range) {
        EndLastLine();
        lines_.push_back("[" + std::string(section) + "]" + std::string(LineEnd));
        lines_.push_back(KeyLineText(key, value));
        return;
    }
    if (const auto at = FindKey(*range, key)) {
        lines_[*at] = KeyLineText(KeyLineOf(lines_[*at])->key, value);
        return;
    }
    const std::size_t behind = BehindLastKey(*range);
    if (behind == lines_.size())
        EndLastLine();
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(behind), KeyLineText(key, value));
}

void IniText::EndLastLine()
{
    if (!lines_.empty() && lines_.back().find_last_of(LineEnd) == std::string::npos)
        lines_.back().append(LineEnd);
}

std::string IniText::ToString() const
{
    std::string text;
    for (const std::string& line : lines_)
        text.append(line);
    return text;
}

} // namespace kova::host
