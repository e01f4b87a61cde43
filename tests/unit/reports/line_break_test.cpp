#include "reports/line_break.hpp"
#include "tests/unit/reports/fixed_metrics.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kova::reports::test {
namespace {

constexpr std::size_t NoLimit = std::numeric_limits<std::size_t>::max();
const TextFont Font{10, false};
const FixedMetrics Metrics;

using Texts = std::vector<Text>;

Texts Broken(std::string_view text, Twips width, std::size_t most = NoLimit)
{
    Texts texts;
    for (const BrokenLine& line : BreakLines(text, Font, width, most, Metrics)) {
        EXPECT_EQ(line.width, Metrics.Width(line.text, Font));
        texts.push_back(line.text);
    }
    return texts;
}

TEST(BreakLines, BreaksBetweenWordsWhereTheLineIsFull)
{
    struct Case {
        const char* text;
        Twips width;
        Texts lines;
    };
    const Case cases[]{
        {"", 500, {}},
        {"um", 500, {"um"}},
        {"cinco", 500, {"cinco"}},
        {"um dois", 500, {"um", "dois"}},
        {"um dois tres", 700, {"um dois", "tres"}},
        {"um dois tres", 699, {"um", "dois", "tres"}},
        {"um   dois", 500, {"um", "dois"}},
        {"  um dois", 600, {"  um", "dois"}},
        {"um\r\ndois", 900, {"um", "dois"}},
        {"um\ndois", 900, {"um", "dois"}},
        {"um\rdois", 900, {"um", "dois"}},
        {"um\n\ndois", 900, {"um", "", "dois"}},
        {"um\n  dois tres", 700, {"um", "  dois", "tres"}},
        {"um\r\n\r\n", 900, {"um"}},
        {"\r\n", 900, {}},
        {"um\tdois", 900, {"um dois"}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(Broken(each.text, each.width), each.lines) << each.text << " in " << each.width;
}

TEST(BreakLines, BreaksAWordThatIsWiderThanTheLineBetweenCharacters)
{
    EXPECT_EQ(Broken("abcdefgh", 300), (Texts{"abc", "def", "gh"}));
    EXPECT_EQ(Broken("um abcdefgh ij", 300), (Texts{"um", "abc", "def", "gh", "ij"}));
    EXPECT_EQ(Broken("çãéçã", 200), (Texts{"çã", "éç", "ã"}));
    EXPECT_EQ(Broken("ab", 50), (Texts{"a", "b"}));
}

TEST(BreakLines, GivesTheLastLineThatMayBeAllTheRest)
{
    EXPECT_EQ(Broken("um dois tres", 300, 1), (Texts{"um dois tres"}));
    EXPECT_EQ(Broken("um dois tres", 400, 2), (Texts{"um", "dois tres"}));
    EXPECT_EQ(Broken("um\r\ndois", 400, 1), (Texts{"um  dois"}));
    EXPECT_EQ(Broken("um\ndois\ntres", 400, 2), (Texts{"um", "dois tres"}));
    EXPECT_EQ(Broken("um dois", 900, 2), (Texts{"um dois"}));
}

TEST(BreakLines, LosesNoCharacterOfALongRemark)
{
    Text remark;
    for (int word = 0; remark.size() < 500; ++word)
        remark += "palavra" + std::to_string(word) + (word % 7 == 6 ? "\r\n" : " ");
    remark.pop_back();
    Text joined;
    for (const Text& line : Broken(remark, 2100)) {
        EXPECT_LE(Length(line), 21u);
        joined += line;
    }
    std::erase_if(remark, [](char byte) { return byte == ' ' || byte == '\r' || byte == '\n'; });
    std::erase(joined, ' ');
    EXPECT_EQ(joined, remark);
}

TEST(Shortened, EndsInAnEllipsisOnlyWhereSomethingIsLeftOut)
{
    const BrokenLine line{"abcdef", 600};
    EXPECT_EQ(Shortened(line, Font, 600, Metrics), line);
    EXPECT_EQ(Shortened(line, Font, 599, Metrics), (BrokenLine{"abcd…", 500}));
    EXPECT_EQ(Shortened({"ab cdef", 700}, Font, 450, Metrics), (BrokenLine{"ab…", 300}));
    EXPECT_EQ(Shortened({"ãçé", 300}, Font, 200, Metrics), (BrokenLine{"ã…", 200}));
    EXPECT_EQ(Shortened(line, Font, 100, Metrics), (BrokenLine{"…", 100}));
    EXPECT_EQ(Shortened(line, Font, 99, Metrics), BrokenLine{});
}

} // namespace
} // namespace kova::reports::test
