#include "family/presentation/labels/label_pages.hpp"

#include "reports/line_break.hpp"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace kova::family {

namespace {

/// Between the label's edge and its text: printers pull a sheet in a little askew.
constexpr Twips MarginX = static_cast<Twips>(3.5 * TwipsOfMillimetre);
constexpr Twips MarginY = static_cast<Twips>(2.0 * TwipsOfMillimetre);

constexpr float LargestFont = 11.0F;
/// Down to this size letters shrink before lines break.
constexpr float ComfortableFont = 9.0F;
constexpr float SmallestFont = 1.0F;
constexpr float FontStep = 0.5F;

constexpr std::size_t Unlimited = std::numeric_limits<std::size_t>::max();

/// Lines broken for one size of letters.
struct Setting {
    float size = 0;
    std::vector<std::vector<reports::BrokenLine>> lines = {};
};

Setting SetIn(float size, const std::vector<LabelLine>& lines, Twips width,
              const reports::TextMetrics& metrics)
{
    Setting setting{size};
    for (const LabelLine& line : lines)
        setting.lines.push_back(reports::BreakLines(line.text, {size, line.bold}, width, Unlimited, metrics));
    return setting;
}

std::size_t CountOfLines(const Setting& setting)
{
    std::size_t count = 0;
    for (const auto& broken : setting.lines)
        count += broken.size();
    return count;
}

Twips HeightOf(const Setting& setting, const reports::TextMetrics& metrics)
{
    return static_cast<Twips>(CountOfLines(setting)) * metrics.LineHeight({setting.size, true});
}

/// In the largest letters from `largest` down to `smallest` that have room; none where no size has.
std::optional<Setting> LargestFitting(float largest, float smallest, bool mayBreak,
                                      const std::vector<LabelLine>& lines, const reports::Box& room,
                                      const reports::TextMetrics& metrics)
{
    for (float size = largest; size >= smallest; size -= FontStep) {
        Setting setting = SetIn(size, lines, room.width, metrics);
        const bool isBroken = CountOfLines(setting) > lines.size();
        if (HeightOf(setting, metrics) <= room.height && (mayBreak || !isBroken))
            return setting;
    }
    return std::nullopt;
}

Setting BestSetting(const std::vector<LabelLine>& lines, const reports::Box& room,
                    const reports::TextMetrics& metrics)
{
    if (auto whole = LargestFitting(LargestFont, ComfortableFont, false, lines, room, metrics))
        return std::move(*whole);
    if (auto broken = LargestFitting(LargestFont, SmallestFont, true, lines, room, metrics))
        return std::move(*broken);
    return SetIn(SmallestFont, lines, room.width, metrics);
}

reports::Item ItemOf(const std::vector<reports::BrokenLine>& broken, const LabelLine& line, float size,
                     Twips left, Twips top, const reports::TextMetrics& metrics)
{
    reports::Item item;
    item.text = line.text;
    item.font = {size, line.bold};
    item.inkHeight = metrics.InkHeight(item.font);
    const Twips step = metrics.LineHeight({size, true});
    item.box = {left, top, 0, step * static_cast<Twips>(broken.size())};
    for (const reports::BrokenLine& part : broken) {
        item.lines.push_back({part.text, left, top, part.width});
        item.box.width = std::max(item.box.width, part.width);
        top += step;
    }
    return item;
}

void Add(const std::vector<reports::Item>& label, const reports::Box& box, reports::Page& page)
{
    for (reports::Item item : label) {
        item.box.left += box.left;
        item.box.top += box.top;
        for (reports::TextLine& line : item.lines) {
            line.left += box.left;
            line.top += box.top;
        }
        page.items.push_back(std::move(item));
    }
}

} // namespace

std::vector<reports::Item> FitLabel(const std::vector<LabelLine>& lines, const reports::Box& box,
                                    const reports::TextMetrics& metrics)
{
    const reports::Box room{box.left + MarginX, box.top + MarginY, box.width - 2 * MarginX,
                            box.height - 2 * MarginY};
    const Setting setting = BestSetting(lines, room, metrics);
    Twips top = room.top + (room.height - HeightOf(setting, metrics)) / 2;
    std::vector<reports::Item> items;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        items.push_back(ItemOf(setting.lines[at], lines[at], setting.size, room.left, top, metrics));
        top = items.back().box.Bottom();
    }
    return items;
}

reports::Document LabelPages(const LabelRun& run, const std::vector<LabelLine>& lines,
                             const reports::TextMetrics& metrics)
{
    const LabelSheet& sheet = *run.sheet;
    reports::Document document;
    document.paperWidth = PaperWidthOf(sheet);
    document.paperHeight = PaperHeightOf(sheet);
    document.pages.resize(static_cast<std::size_t>(SheetsNeeded(sheet, run.first, run.copies)));
    const reports::Box size = BoxOfLabel(sheet, 0);
    const std::vector<reports::Item> label = FitLabel(lines, {0, 0, size.width, size.height}, metrics);
    for (int copy = 0; copy < run.copies; ++copy) {
        const LabelPlace place = PlaceOfCopy(sheet, run.first, copy);
        Add(label, BoxOfLabel(sheet, place.position), document.pages[static_cast<std::size_t>(place.sheet)]);
    }
    return document;
}

} // namespace kova::family
