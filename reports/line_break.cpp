#include "reports/line_break.hpp"

#include "agenda/contracts/utf8.hpp"

#include <algorithm>

namespace kova::reports {

namespace {

constexpr std::string_view Ellipsis = "…";
constexpr char Delete = 127;

bool IsControl(char byte) { return (byte >= 0 && byte < ' ') || byte == Delete; }

std::string_view WithoutEnd(std::string_view text, std::string_view dropped)
{
    const std::size_t last = text.find_last_not_of(dropped);
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// Cuts one text into lines.
class Breaker {
public:
    Breaker(const TextFont& font, Twips width, std::size_t most, const TextMetrics& metrics)
        : font_(font), width_(width), most_(most), metrics_(metrics)
    {
    }

    void Break(std::string_view text)
    {
        while (!text.empty()) {
            if (IsLast())
                return Add(text);
            const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
            BreakParagraph(text.substr(0, end), text);
            if (lines_.size() == most_)
                return;
            text.remove_prefix(end);
            text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
        }
    }

    std::vector<BrokenLine> Take() { return std::move(lines_); }

private:
    bool IsLast() const { return lines_.size() + 1 == most_; }

    Twips WidthOf(std::string_view text) const { return metrics_.Width(text, font_); }

    void Add(std::string_view text) { lines_.push_back(OneLine(text, font_, metrics_)); }

    /// `all` begins with the paragraph: what the last line takes.
    void BreakParagraph(std::string_view paragraph, std::string_view all)
    {
        const char* begin = paragraph.data();
        do {
            if (IsLast())
                return Add(all.substr(static_cast<std::size_t>(paragraph.data() - begin)));
            const std::size_t length = FittingLength(paragraph);
            Add(WithoutEnd(paragraph.substr(0, length), " \t"));
            paragraph.remove_prefix(length);
            paragraph.remove_prefix(std::min(paragraph.find_first_not_of(" \t"), paragraph.size()));
        } while (!paragraph.empty());
    }

    /// Where the first line of `text` ends: behind its last word that fits, or inside the first one.
    std::size_t FittingLength(std::string_view text) const
    {
        if (WidthOf(text) <= width_)
            return text.size();
        std::size_t fitting = 0;
        for (std::size_t word = 0; word < text.size();) {
            const std::size_t begin = std::min(text.find_first_not_of(" \t", word), text.size());
            const std::size_t end = std::min(text.find_first_of(" \t", begin), text.size());
            if (WidthOf(text.substr(0, end)) > width_)
                break;
            fitting = word = end;
        }
        return fitting > 0 ? fitting : FittingCharacters(text);
    }

    /// At least one character, or no line would ever end.
    std::size_t FittingCharacters(std::string_view text) const
    {
        std::size_t fitting = utf8::SequenceLength(text, 0);
        while (fitting < text.size()) {
            const std::size_t next = fitting + utf8::SequenceLength(text, fitting);
            if (WidthOf(text.substr(0, next)) > width_)
                break;
            fitting = next;
        }
        return fitting;
    }

    const TextFont& font_;
    const Twips width_;
    const std::size_t most_;
    const TextMetrics& metrics_;
    std::vector<BrokenLine> lines_;
};

} // namespace

BrokenLine OneLine(std::string_view text, const TextFont& font, const TextMetrics& metrics)
{
    Text line(WithoutEnd(text, "\r\n"));
    std::replace_if(line.begin(), line.end(), IsControl, ' ');
    const Twips width = line.empty() ? 0 : metrics.Width(line, font);
    return {std::move(line), width};
}

std::vector<BrokenLine> BreakLines(std::string_view text, const TextFont& font, Twips width, std::size_t most,
                                   const TextMetrics& metrics)
{
    Breaker breaker(font, width, most, metrics);
    breaker.Break(WithoutEnd(text, "\r\n"));
    return breaker.Take();
}

BrokenLine Shortened(const BrokenLine& line, const TextFont& font, Twips width, const TextMetrics& metrics)
{
    if (line.width <= width)
        return line;
    std::string_view kept = line.text;
    while (!kept.empty()) {
        std::size_t last = kept.size() - 1;
        while (last > 0 && utf8::SequenceLength(kept, last) == 1 && (kept[last] & 0xC0) == 0x80)
            --last;
        kept = WithoutEnd(kept.substr(0, last), " ");
        Text shortened = Text(kept).append(Ellipsis);
        const Twips needed = metrics.Width(shortened, font);
        if (needed <= width)
            return {std::move(shortened), needed};
    }
    return {};
}

} // namespace kova::reports
