// What stands on paper, with the fonts that print it.

#include "tests/unit/reports/qt/report_samples.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace kova::qt::test {
namespace {

using reports::Box;
using reports::Document;
using reports::Item;
using reports::ItemKind;
using reports::Page;

struct Ink {
    Box box;
    const Item* item;
};

std::vector<Ink> InkOf(const Page& page)
{
    std::vector<Ink> all;
    for (const Item& item : page.items) {
        for (const Box& box : reports::InkOf(item))
            all.push_back({box, &item});
    }
    return all;
}

std::string NameOf(const Item& item)
{
    return item.kind == ItemKind::Text
        ? "\"" + item.text + "\""
        : (item.kind == ItemKind::Rule ? "rule at " : "band at ") + std::to_string(item.box.top);
}

bool IsTextOnItsBand(const Item& a, const Item& b) { return a.kind == ItemKind::Band && a.box == b.box; }

void ExpectNoInkOverInk(const Page& page, const std::string& what)
{
    const std::vector<Ink> ink = InkOf(page);
    for (auto a = ink.begin(); a != ink.end(); ++a) {
        for (auto b = a + 1; b != ink.end(); ++b) {
            if (a->item == b->item || IsTextOnItsBand(*a->item, *b->item))
                continue;
            EXPECT_FALSE(Overlap(a->box, b->box))
                << what << ": " << NameOf(*a->item) << " and " << NameOf(*b->item);
        }
    }
}

void ExpectWithinMargins(const Document& document, const Page& page, const std::string& what)
{
    constexpr Twips margin = 850;
    constexpr Twips rounding = 0.5F;
    for (const Ink& ink : InkOf(page)) {
        EXPECT_GE(ink.box.left, margin - rounding) << what << ": " << NameOf(*ink.item);
        EXPECT_GE(ink.box.top, margin - rounding) << what << ": " << NameOf(*ink.item);
        EXPECT_LE(ink.box.Right(), document.paperWidth - margin + rounding)
            << what << ": " << NameOf(*ink.item);
        EXPECT_LE(ink.box.Bottom(), document.paperHeight - margin + rounding)
            << what << ": " << NameOf(*ink.item);
    }
}

std::string WithoutBlanks(std::string text)
{
    std::erase_if(text, [](char byte) { return byte == ' ' || byte == '\r' || byte == '\n'; });
    return text;
}

void ExpectNothingCut(const Page& page, const std::string& what)
{
    for (const Item& item : page.items) {
        std::string drawn;
        for (const reports::TextLine& line : item.lines)
            drawn += line.text;
        EXPECT_EQ(WithoutBlanks(drawn), WithoutBlanks(item.text)) << what;
    }
}

TEST(ReportLayouts, PutNoInkOverInkAndCutNothing)
{
    for (const ReportDesign* layout : AllLayouts()) {
        for (const Filling filling : {Filling::Empty, Filling::Short, Filling::Long}) {
            const Document document = LaidOut(FilledReport(*layout, filling, IsList(*layout) ? 30 : 1));
            for (std::size_t page = 0; page < document.pages.size(); ++page) {
                const std::string what = layout->name + " " + std::to_string(static_cast<int>(filling))
                    + " page " + std::to_string(page + 1);
                ExpectNoInkOverInk(document.pages[page], what);
                ExpectWithinMargins(document, document.pages[page], what);
                ExpectNothingCut(document.pages[page], what);
            }
        }
    }
}

TEST(ReportLayouts, ArePrintedInTheirOwnSize)
{
    for (const ReportDesign* layout : AllLayouts()) {
        const Document document = LaidOut(FilledReport(*layout, Filling::Short, 1));
        const Item& title = document.pages[0].items[0];
        EXPECT_EQ(title.box.left, 850 + layout->sections[0].controls[0].left) << layout->name;
        EXPECT_EQ(title.box.width, layout->sections[0].controls[0].width) << layout->name;
        EXPECT_EQ(document.pages.size(), 1u) << layout->name;
        EXPECT_EQ(document.paperWidth, IsList(*layout) ? 16838 : 11906) << layout->name;
    }
}

TEST(ReportLayouts, KeepACardOnOnePageWhereItsTextsAreShort)
{
    for (const ReportDesign* layout : AllLayouts()) {
        if (!IsList(*layout)) {
            EXPECT_EQ(LaidOut(FilledReport(*layout, Filling::Short, 1)).pages.size(), 1u) << layout->name;
        }
    }
}

TEST(ReportLayouts, GrowTheRemarkAndMoveTheTransportBlockDown)
{
    const ReportDesign& layout = agenda::DesenhoDedrFichaDoAgendamentoParaTransporte();
    const auto topOf = [](const Document& document, const Text& text) {
        const auto& items = document.pages[0].items;
        return std::ranges::find(items, text, &Item::text)->box.top;
    };
    const Document small = LaidOut(FilledReport(layout, Filling::Short, 1));
    const Document large = LaidOut(FilledReport(layout, Filling::Long, 1));
    EXPECT_EQ(topOf(small, "Transporte:"), 850 + 1710 + 7618);
    EXPECT_GT(topOf(large, "Transporte:"), 850 + 1710 + 7618 + 6 * 224);
}

} // namespace
} // namespace kova::qt::test
