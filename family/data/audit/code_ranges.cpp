#include "family/data/audit/code_ranges.hpp"

#include <charconv>
#include <optional>

namespace kova::family {

namespace {

std::optional<Key> ReadCode(std::string_view text)
{
    Key code = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, code);
    return read.ec == std::errc() && read.ptr == end ? std::optional(code) : std::nullopt;
}

std::optional<CodeRange> ReadRange(std::string_view text)
{
    const std::size_t dash = text.find('-');
    const std::optional<Key> first = ReadCode(text.substr(0, dash));
    const std::optional<Key> last = dash == std::string_view::npos ? first : ReadCode(text.substr(dash + 1));
    return first && last ? std::optional(CodeRange{*first, *last}) : std::nullopt;
}

} // namespace

std::string RangesOf(const std::vector<Key>& codes)
{
    std::string text;
    for (std::size_t at = 0; at < codes.size();) {
        std::size_t end = at + 1;
        while (end < codes.size() && codes[end] == codes[end - 1] + 1)
            ++end;
        text += (text.empty() ? "" : ",") + std::to_string(codes[at]);
        if (end > at + 1)
            text += "-" + std::to_string(codes[end - 1]);
        at = end;
    }
    return text;
}

std::vector<CodeRange> ReadRanges(std::string_view text)
{
    std::vector<CodeRange> ranges;
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        if (const auto range = ReadRange(text.substr(0, comma)))
            ranges.push_back(*range);
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return ranges;
}

} // namespace kova::family
