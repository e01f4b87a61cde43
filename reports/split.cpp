// Cutting a section that no page can hold.

#include "reports/section_layout.hpp"

#include <algorithm>
#include <iterator>

namespace kova::reports {

namespace {

/// Where to cut at or above `wanted`: through no ink. `start` where there is no such place below it.
Twips CutBelow(const std::vector<Box>& inks, Twips start, Twips wanted)
{
    Twips cut = wanted;
    for (bool moved = true; moved;) {
        moved = false;
        for (const Box& ink : inks) {
            if (ink.top < cut && cut < ink.Bottom()) {
                cut = ink.top;
                moved = true;
            }
        }
    }
    return std::max(cut, start);
}

std::vector<Box> AllInk(const SectionLayout& section)
{
    std::vector<Box> all;
    for (const Item& item : section.items)
        std::ranges::copy(InkOf(item), std::back_inserter(all));
    return all;
}

Twips LowestOf(const std::vector<Box>& inks)
{
    Twips lowest = 0;
    for (const Box& ink : inks)
        lowest = std::max(lowest, ink.Bottom());
    return lowest;
}

/// From one cut to the next. The last part also holds what stands on its lower edge.
struct Slice {
    Twips top = 0;
    Twips bottom = 0;
    bool isLast = false;

    bool Holds(Twips place) const { return place >= top && (place < bottom || isLast); }
};

Text Joined(const std::vector<TextLine>& lines)
{
    Text text;
    for (const TextLine& line : lines)
        text += (text.empty() ? "" : " ") + line.text;
    return text;
}

void Lift(Item& item, Twips by)
{
    item.box.top -= by;
    for (TextLine& line : item.lines)
        line.top -= by;
}

/// The part of a text with several lines; a text without a line here has no part.
void CutText(std::vector<Item>& part, const Item& item, const Slice& slice)
{
    Item piece = item;
    std::erase_if(piece.lines, [&](const TextLine& line) { return !slice.Holds(line.top); });
    if (piece.lines.empty())
        return;
    if (piece.lines.size() < item.lines.size()) {
        piece.box.top = std::max(item.box.top, slice.top);
        piece.box.height = std::min(item.box.Bottom(), slice.bottom) - piece.box.top;
        piece.text = Joined(piece.lines);
    }
    Lift(piece, slice.top);
    part.push_back(std::move(piece));
}

SectionLayout PartOf(const SectionLayout& section, const Slice& slice)
{
    SectionLayout part{{}, slice.bottom - slice.top};
    for (const Item& item : section.items) {
        if (!item.lines.empty()) {
            CutText(part.items, item, slice);
        } else if (slice.Holds(item.box.top)) {
            part.items.push_back(item);
            Lift(part.items.back(), slice.top);
        }
    }
    return part;
}

} // namespace

std::vector<SectionLayout> Split(const SectionLayout& section, Twips room)
{
    const std::vector<Box> inks = AllInk(section);
    // What is blank below the last ink asks for no part of its own.
    const Twips lowest = std::min(LowestOf(inks), section.height);
    std::vector<SectionLayout> parts;
    Slice slice;
    while (lowest - slice.top > room) {
        const Twips cut = CutBelow(inks, slice.top, slice.top + room);
        slice.bottom = cut > slice.top ? cut : slice.top + room;
        parts.push_back(PartOf(section, slice));
        slice.top = slice.bottom;
    }
    slice.bottom = std::min(section.height, slice.top + room);
    slice.isLast = true;
    parts.push_back(PartOf(section, slice));
    return parts;
}

} // namespace kova::reports
