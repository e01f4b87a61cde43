#pragma once

#include "agenda/contracts/reports.hpp"

#include <vector>

namespace kova::reports {

/// Edges in twips.
struct Box {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;

    Twips Right() const { return left + width; }
    Twips Bottom() const { return top + height; }
    friend bool operator==(const Box&, const Box&) = default;
};

/// Whether the two share an area. Boxes that only touch do not.
bool Overlap(const Box& a, const Box& b);

/// Arial, in points.
struct TextFont {
    float size = 9.75F;
    bool bold = false;
};

/// One line of a text as it is drawn: its upper left corner, its advance width.
struct TextLine {
    Text text = {};
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
};

enum class ItemKind {
    Text,
    /// A line. Its box may have no height; see InkOf.
    Rule,
    /// The background of a text.
    Band,
};

/// What stands on a page. Bands come before their text.
struct Item {
    ItemKind kind = ItemKind::Text;
    /// The control's box after growing, or its part on this page.
    Box box = {};
    Colour color = colours::Black;
    // Texts only.
    Text text = {};
    TextFont font = {};
    ReportAlignment alignment = ReportAlignment::Left;
    /// Of each line, without the gap below it.
    Twips inkHeight = 0;
    std::vector<TextLine> lines = {};
};

/// Thickness of a line without height.
inline constexpr Twips RuleThickness = 15;

/// Where ink falls: the lines of a text, the stroke of a rule, the whole of a band.
std::vector<Box> InkOf(const Item& item);

struct Page {
    /// In drawing order; places are twips from the paper's top left corner.
    std::vector<Item> items;
};

/// What a report prints.
struct Document {
    Text title = {};
    Twips paperWidth = 0;
    Twips paperHeight = 0;
    Long records = 0;
    std::vector<Page> pages = {};
};

} // namespace kova::reports
