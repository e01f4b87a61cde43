#include "reports/section_layout.hpp"
#include "tests/unit/reports/fixed_metrics.hpp"

#include <gtest/gtest.h>

namespace kova::reports::test {
namespace {

const FixedMetrics Metrics;
constexpr Twips Wide = 10000;

ReportControlDesign Box(Twips left, Twips top, Twips width, Twips height)
{
    return {.kind = ReportControlKind::TextBox,
            .left = left,
            .top = top,
            .width = width,
            .height = height,
            .fontSize = 10};
}

ReportControlDesign Growing(ReportControlDesign box)
{
    box.canGrow = true;
    return box;
}

ReportControlDesign Aligned(ReportControlDesign box, ReportAlignment alignment)
{
    box.alignment = alignment;
    return box;
}

ReportControlDesign Rule(Twips left, Twips top, Twips width)
{
    return {.kind = ReportControlKind::Line, .left = left, .top = top, .width = width, .height = 0};
}

SectionLayout LayOut(std::vector<ReportControlDesign> controls, std::vector<Text> texts, Twips height = 1000,
                     Twips width = Wide)
{
    const ReportSectionDesign design{ReportSectionKind::Details, "Detalhes", height, std::move(controls)};
    return LayOutSection(design, texts, width, Metrics);
}

std::vector<Text> LinesOf(const Item& item)
{
    std::vector<Text> texts;
    for (const TextLine& line : item.lines)
        texts.push_back(line.text);
    return texts;
}

TEST(LayOutSection, GrowsABoxByWholeLinesAndTheSectionWithIt)
{
    const SectionLayout section =
        LayOut({Growing(Box(0, 100, 500, 225)), Rule(0, 900, 500)}, {"aaa bbb ccc", ""}, 1000);
    const Item& text = section.items[0];
    EXPECT_EQ(LinesOf(text), (std::vector<Text>{"aaa", "bbb", "ccc"}));
    EXPECT_EQ(text.box.height, 600);
    EXPECT_EQ(text.lines[2].top, 100 + 2 * 200);
    EXPECT_EQ(section.items[1].box.top, 900 + 600 - 225);
    EXPECT_EQ(section.height, 1000 + 600 - 225);
}

TEST(LayOutSection, LeavesABoxAsDesignedWhereItsTextFitsOrIsEmpty)
{
    const SectionLayout section =
        LayOut({Growing(Box(0, 0, 500, 225)), Growing(Box(0, 300, 500, 225))}, {"aaaaa", ""});
    EXPECT_EQ(section.items[0].box.height, 225);
    EXPECT_EQ(section.items[1].box.height, 225);
    EXPECT_TRUE(section.items[1].lines.empty());
    EXPECT_EQ(section.height, 1000);
}

TEST(LayOutSection, LetsATextThatCannotGrowRunOnBesideItsBox)
{
    const SectionLayout section = LayOut({Box(0, 0, 300, 225)}, {"aaa bbb ccc"});
    EXPECT_EQ(LinesOf(section.items[0]), (std::vector<Text>{"aaa bbb ccc"}));
    EXPECT_EQ(section.items[0].box, (reports::Box{0, 0, 300, 225}));
    EXPECT_EQ(section.height, 1000);
}

TEST(LayOutSection, UsesAllLinesThatAFixedBoxHasRoomFor)
{
    const SectionLayout section = LayOut({Box(0, 0, 300, 400)}, {"aaa bbb ccc"});
    EXPECT_EQ(LinesOf(section.items[0]), (std::vector<Text>{"aaa", "bbb ccc"}));
}

TEST(LayOutSection, AlignsEachLine)
{
    struct Case {
        ReportAlignment alignment;
        Twips left;
    };
    for (const Case each : {Case{ReportAlignment::Left, 1000}, Case{ReportAlignment::Right, 1700},
                            Case{ReportAlignment::Center, 1350}}) {
        const SectionLayout section = LayOut({Aligned(Box(1000, 0, 1000, 225), each.alignment)}, {"aaa"});
        EXPECT_EQ(section.items[0].lines[0].left, each.left);
    }
}

TEST(LayOutSection, DrawsABackgroundBelowItsText)
{
    ReportControlDesign label = Box(0, 0, 500, 225);
    label.backColor = Rgb(128, 128, 128);
    const SectionLayout section = LayOut({label}, {"aaa"});
    ASSERT_EQ(section.items.size(), 2u);
    EXPECT_EQ(section.items[0].kind, ItemKind::Band);
    EXPECT_EQ(section.items[0].color, Rgb(128, 128, 128));
    EXPECT_EQ(section.items[0].box, section.items[1].box);
    EXPECT_EQ(LinesOf(section.items[1]), std::vector<Text>{"aaa"});
}

// Where boxes share a place, or a text leaves its box, ink still keeps off ink.
TEST(KeepApart, ShortensATextWhereSomethingStandsBesideIt)
{
    using enum ReportAlignment;
    struct Case {
        const char* what;
        std::vector<ReportControlDesign> controls;
        std::vector<Text> texts;
        std::vector<Text> drawn;
    };
    const Case cases[]{
        {"a neighbour on the right",
         {Box(0, 0, 300, 225), Box(500, 0, 300, 225)},
         {"abcdefgh", "xyz"},
         {"abcd…", "xyz"}},
        {"an empty neighbour",
         {Box(0, 0, 300, 225), Box(500, 0, 300, 225)},
         {"abcdefgh", ""},
         {"abcdefgh", ""}},
        {"a neighbour on another line",
         {Box(0, 0, 300, 225), Box(500, 300, 300, 225)},
         {"abcdefgh", "xyz"},
         {"abcdefgh", "xyz"}},
        {"a right aligned text gives way on the left",
         {Box(0, 0, 300, 225), Aligned(Box(500, 0, 300, 225), Right)},
         {"abc", "uvwxyz"},
         {"abc", "uvwx…"}},
        {"both leave their boxes: the first goes first",
         {Box(0, 0, 300, 225), Aligned(Box(600, 0, 300, 225), Right)},
         {"abcde", "uvwxyz"},
         {"abcde", "uvw…"}},
        {"overlapping boxes", {Box(0, 0, 500, 225), Box(300, 0, 300, 225)}, {"abcde", "xyz"}, {"ab…", "xyz"}},
        {"overlapping boxes whose ink does not touch",
         {Box(0, 0, 500, 225), Box(300, 0, 300, 225)},
         {"abc", "xyz"},
         {"abc", "xyz"}},
        {"boxes of two lines that overlap by their empty edge",
         {Box(0, 0, 500, 285), Box(0, 228, 500, 285)},
         {"abcde", "vwxyz"},
         {"abcde", "vwxyz"}},
        {"a centred text gives way on both sides",
         {Box(0, 0, 100, 225), Aligned(Box(200, 0, 300, 225), Center)},
         {"a", "uvwxyz"},
         {"a", "uvwx…"}},
        {"a rule is ink too", {Box(0, 100, 300, 225), Rule(500, 200, 300)}, {"abcdefgh", ""}, {"abcd…", ""}},
        {"a rule below the ink is not in the way",
         {Box(0, 0, 300, 225), Rule(500, 182, 300)},
         {"abcdefgh", ""},
         {"abcdefgh", ""}},
    };
    for (const Case& each : cases) {
        const SectionLayout section = LayOut(each.controls, each.texts);
        for (std::size_t at = 0; at < each.drawn.size(); ++at) {
            const auto lines = LinesOf(section.items[at]);
            EXPECT_EQ(lines.empty() ? Text() : lines[0], each.drawn[at]) << each.what;
            EXPECT_EQ(section.items[at].text, each.texts[at]) << each.what;
        }
    }
}

TEST(KeepApart, KeepsTextsWithinThePaper)
{
    const SectionLayout right = LayOut({Box(9500, 0, 300, 225)}, {"abcdefgh"});
    EXPECT_EQ(LinesOf(right.items[0]), std::vector<Text>{"abcd…"});
    const SectionLayout left = LayOut({Aligned(Box(0, 0, 300, 225), ReportAlignment::Right)}, {"abcdefgh"});
    EXPECT_EQ(LinesOf(left.items[0]), std::vector<Text>{"ab…"});
    EXPECT_EQ(left.items[0].lines[0].left, 0);
}

TEST(Split, CutsBetweenLinesAndLosesNone)
{
    const SectionLayout tall = LayOut(
        {Box(0, 0, 300, 225), Growing(Box(500, 0, 100, 225)), Rule(0, 300, 900), Box(0, 300, 300, 225)},
        {"abc", "a b c d e f g h", "", "xyz"}, 600);
    ASSERT_EQ(tall.height, 600 + 8 * 200 - 225);
    const std::vector<SectionLayout> parts = Split(tall, 700);
    ASSERT_EQ(parts.size(), 3u);
    std::vector<Text> lines;
    for (const SectionLayout& part : parts) {
        EXPECT_LE(part.height, 700);
        for (const Item& item : part.items) {
            EXPECT_GE(item.box.top, 0);
            EXPECT_LE(item.box.Bottom(), part.height);
            for (const TextLine& line : item.lines) {
                EXPECT_GE(line.top, 0);
                EXPECT_LE(line.top + item.inkHeight, part.height);
                lines.push_back(line.text);
            }
        }
    }
    EXPECT_EQ(lines, (std::vector<Text>{"abc", "a", "b", "c", "d", "e", "f", "g", "h", "xyz"}));
    EXPECT_EQ(parts[0].items[1].text, "a b c");
    EXPECT_EQ(parts[0].height, 600) << "the fourth line would be cut";
    EXPECT_EQ(parts[2].items.back().text, "xyz");
}

TEST(Split, GoesOnWhereNotEvenOneLineFits)
{
    const SectionLayout tall = LayOut({Growing(Box(0, 0, 100, 225))}, {"a b c"}, 225);
    const std::vector<SectionLayout> parts = Split(tall, 50);
    std::size_t lines = 0;
    for (const SectionLayout& part : parts) {
        for (const Item& item : part.items)
            lines += item.lines.size();
    }
    EXPECT_EQ(lines, 3u);
    EXPECT_EQ(parts.size(), 12u);
}

} // namespace
} // namespace kova::reports::test
