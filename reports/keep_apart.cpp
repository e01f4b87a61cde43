#include "reports/keep_apart.hpp"

#include "reports/line_break.hpp"

#include <algorithm>
#include <cstddef>

namespace kova::reports {

namespace {

/// From left to right.
struct Reach {
    Twips left = 0;
    Twips right = 0;
};

Box Common(const Box& a, const Box& b)
{
    const Twips left = std::max(a.left, b.left);
    const Twips top = std::max(a.top, b.top);
    return {left, top, std::min(a.Right(), b.Right()) - left, std::min(a.Bottom(), b.Bottom()) - top};
}

/// The point of a line that stays where it is when the line is shortened.
Twips AnchorOf(const Item& item)
{
    switch (item.alignment) {
    case ReportAlignment::Left: return item.box.left;
    case ReportAlignment::Right: return item.box.Right();
    case ReportAlignment::Center: return item.box.left + item.box.width / 2;
    }
    return item.box.left;
}

/// Ink of one item that a line must not touch. Of an item that has not had its turn, only what it holds
/// within its own box.
void Narrow(Reach& reach, const Item& other, bool isSettled, const Box& line, Twips anchor)
{
    for (const Box& ink : InkOf(other)) {
        const Box obstacle = isSettled || other.kind != ItemKind::Text
            ? ink
            : Common(ink, {other.box.left, ink.top, other.box.width, ink.height});
        if (obstacle.width <= 0 || obstacle.top >= line.Bottom() || line.top >= obstacle.Bottom())
            continue;
        if (obstacle.left > anchor)
            reach.right = std::min(reach.right, obstacle.left);
        else if (obstacle.Right() < anchor)
            reach.left = std::max(reach.left, obstacle.Right());
    }
}

Twips RoomOf(const Reach& reach, ReportAlignment alignment, Twips anchor)
{
    switch (alignment) {
    case ReportAlignment::Left: return reach.right - anchor;
    case ReportAlignment::Right: return anchor - reach.left;
    case ReportAlignment::Center: return 2 * std::min(reach.right - anchor, anchor - reach.left);
    }
    return 0;
}

/// The band of a text is its own ground and no obstacle.
bool IsOwnBand(const Item& item, const Item& other)
{
    return other.kind == ItemKind::Band && other.box == item.box;
}

Reach ReachOf(const std::vector<Item>& items, std::size_t number, const TextLine& line, Twips width)
{
    const Item& item = items[number];
    Reach reach{0, width};
    const Box ink{line.left, line.top, line.width, item.inkHeight};
    for (std::size_t other = 0; other < items.size(); ++other) {
        if (other != number && !IsOwnBand(item, items[other]))
            Narrow(reach, items[other], other < number, ink, AnchorOf(item));
    }
    return reach;
}

} // namespace

Twips AlignedLeft(const Box& box, ReportAlignment alignment, Twips lineWidth)
{
    switch (alignment) {
    case ReportAlignment::Left: return box.left;
    case ReportAlignment::Right: return box.Right() - lineWidth;
    case ReportAlignment::Center: return box.left + (box.width - lineWidth) / 2;
    }
    return box.left;
}

void KeepApart(std::vector<Item>& items, Twips width, const TextMetrics& metrics)
{
    for (std::size_t number = 0; number < items.size(); ++number) {
        Item& item = items[number];
        for (TextLine& line : item.lines) {
            if (line.text.empty())
                continue;
            const Reach reach = ReachOf(items, number, line, width);
            const Twips room = RoomOf(reach, item.alignment, AnchorOf(item));
            if (line.width <= room)
                continue;
            BrokenLine shortened = Shortened({std::move(line.text), line.width}, item.font, room, metrics);
            line.text = std::move(shortened.text);
            line.width = shortened.width;
            line.left = AlignedLeft(item.box, item.alignment, line.width);
        }
    }
}

} // namespace kova::reports
