// Texts inside labels, and copies of labels on sheets.

#include "family/presentation/labels/label_pages.hpp"
#include "tests/unit/reports/fixed_metrics.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace kova::family {
namespace {

const reports::test::FixedMetrics Metrics;

std::string Repeated(const char* text, int times)
{
    std::string all;
    for (int time = 0; time < times; ++time)
        all += text;
    return all;
}

std::vector<LabelLine> Address(const std::string& name, const std::string& street)
{
    return {{name, true}, {street}, {"Centro"}, {"Vale Sereno/SP"}, {"CEP 00456-789"}};
}

std::string AllText(const std::vector<reports::Item>& items)
{
    std::string text;
    for (const reports::Item& item : items) {
        for (const reports::TextLine& line : item.lines)
            text += (text.empty() ? "" : " ") + line.text;
    }
    return text;
}

void ExpectInside(const std::vector<reports::Item>& items, const reports::Box& box)
{
    Twips bottom = box.top;
    for (const reports::Item& item : items) {
        for (const reports::TextLine& line : item.lines) {
            EXPECT_GE(line.left, box.left) << line.text;
            EXPECT_LE(line.left + line.width, box.Right()) << line.text;
            EXPECT_GE(line.top, bottom) << line.text << " stands on the line above it";
            bottom = line.top + item.inkHeight;
        }
    }
    EXPECT_LE(bottom, box.Bottom());
}

/// 40 columns of 11 points wide and 6 lines of them high, inside its margins of 198 and 113 twips.
const reports::Box Label{1000, 2000, 4400 + 2 * 198.5F, 1320 + 2 * 113.5F};

struct Case {
    const char* what;
    std::vector<LabelLine> lines;
    float size;
    std::size_t linesOnPaper;
};

TEST(LabelFit, TakesTheLargestLettersThatHaveRoom)
{
    const Case cases[]{
        {"short", Address("José", "Rua A, 1"), 11, 5},
        {"as wide as the label", Address(Repeated("N", 40), "Rua A, 1"), 11, 5},
        {"a little wider shrinks", Address(Repeated("N", 42), "Rua A, 1"), 10, 5},
        {"down to comfortable letters", Address(Repeated("N", 48), "Rua A, 1"), 9, 5},
        {"wider than that breaks", Address("José", Repeated("Rua Nova ", 6)), 11, 6},
        {"two broken lines shrink", Address(Repeated("Ana Nova ", 6), Repeated("Rua Nova ", 6)), 9, 7},
        {"nothing", {}, 0, 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const auto items = FitLabel(each.lines, Label, Metrics);
        std::size_t lines = 0;
        for (const reports::Item& item : items) {
            EXPECT_EQ(item.font.size, each.size);
            lines += item.lines.size();
        }
        EXPECT_EQ(lines, each.linesOnPaper);
        ExpectInside(items, Label);
    }
}

TEST(LabelFit, LosesNothingOfALongAddress)
{
    for (const int words : {10, 60, 120}) {
        const std::string street = Repeated("Travessa ", words) + "fim";
        const auto items = FitLabel(Address("José", street), Label, Metrics);
        EXPECT_EQ(AllText(items), "José " + street + " Centro Vale Sereno/SP CEP 00456-789");
        ExpectInside(items, Label);
    }
}

TEST(LabelFit, BreaksAWordThatIsWiderThanTheLabel)
{
    const auto items = FitLabel(Address("José", Repeated("x", 150)), Label, Metrics);
    ASSERT_EQ(items.size(), 5U);
    std::string street;
    for (const reports::TextLine& line : items[1].lines)
        street += line.text;
    EXPECT_EQ(street, Repeated("x", 150));
    ExpectInside(items, Label);
}

TEST(LabelFit, StandsInTheMiddleOfTheHeight)
{
    const auto items = FitLabel(Address("José", "Rua A, 1"), Label, Metrics);
    const Twips above = items.front().lines.front().top - Label.top;
    const Twips below = Label.Bottom() - items.back().box.Bottom();
    EXPECT_NEAR(above, below, 1);
    EXPECT_TRUE(items.front().font.bold);
    EXPECT_FALSE(items.back().font.bold);
}

TEST(LabelFit, HasRoomOnEverySheet)
{
    const std::string name = Repeated("Maria ", 10);
    const std::string street = Repeated("Rua das Flores ", 12);
    for (const LabelSheet& sheet : LabelSheets()) {
        SCOPED_TRACE(sheet.key);
        const reports::Box box = BoxOfLabel(sheet, sheet.Labels() - 1);
        const auto items = FitLabel(Address(name, street), box, Metrics);
        ExpectInside(items, box);
        EXPECT_GE(items.front().font.size, 3.0F);
    }
}

class LabelPaging : public testing::Test {
protected:
    static reports::Document Run(int first, int copies)
    {
        return LabelPages({&LabelSheetOf("A4-2x7"), first, copies}, Address("José", "Rua A, 1"), Metrics);
    }
};

TEST_F(LabelPaging, PutsEachCopyIntoItsLabel)
{
    const reports::Document pages = Run(12, 17);
    ASSERT_EQ(pages.pages.size(), 3U);
    EXPECT_EQ(pages.pages[0].items.size(), 2U * 5);
    EXPECT_EQ(pages.pages[1].items.size(), 14U * 5);
    EXPECT_EQ(pages.pages[2].items.size(), 1U * 5);
    const LabelSheet& sheet = LabelSheetOf("A4-2x7");
    for (std::size_t page = 0; page < pages.pages.size(); ++page) {
        const auto& items = pages.pages[page].items;
        const int first = page == 0 ? 12 : 0;
        for (std::size_t copy = 0; copy * 5 < items.size(); ++copy)
            ExpectInside({items.begin() + static_cast<std::ptrdiff_t>(copy * 5),
                          items.begin() + static_cast<std::ptrdiff_t>(copy * 5 + 5)},
                         BoxOfLabel(sheet, first + static_cast<int>(copy)));
    }
}

TEST_F(LabelPaging, AlignsTheCopiesExactly)
{
    const reports::Document pages = Run(0, 14);
    const auto& items = pages.pages.front().items;
    std::set<long> lefts;
    for (std::size_t item = 0; item < items.size(); ++item) {
        const reports::TextLine& line = items[item].lines.front();
        const reports::TextLine& sameInFirst = items[item % 5].lines.front();
        const reports::Box box = BoxOfLabel(LabelSheetOf("A4-2x7"), static_cast<int>(item / 5));
        const reports::Box first = BoxOfLabel(LabelSheetOf("A4-2x7"), 0);
        EXPECT_NEAR(line.left - box.left, sameInFirst.left - first.left, 0.01) << item;
        EXPECT_NEAR(line.top - box.top, sameInFirst.top - first.top, 0.01) << item;
        lefts.insert(std::lround(line.left));
    }
    EXPECT_EQ(lefts.size(), 2U) << "one for each column";
}

TEST_F(LabelPaging, HasThePaperOfTheSheet)
{
    const reports::Document pages = Run(0, 1);
    EXPECT_NEAR(pages.paperWidth, 11905.5, 0.5);
    EXPECT_NEAR(pages.paperHeight, 16837.8, 0.5);
}

} // namespace
} // namespace kova::family
