#include "family/csv/encoding.hpp"

#include <gtest/gtest.h>

namespace kova::family::csv::test {

TEST(Encodings, TurnIntoEachOther)
{
    EXPECT_EQ(Utf8FromLatin1("Jos\xE9 \x80 \x93oi\x94"), "José € “oi”");
    EXPECT_EQ(Utf8FromLatin1("\x7F\x80\x9F\xA0\xFF"), "\x7F€Ÿ\u00A0ÿ");
    EXPECT_EQ(Latin1FromUtf8("José ÿ"), "Jos\xE9 \xFF");
    EXPECT_EQ(Latin1FromUtf8("\x7F\u00A0"), "\x7F\xA0");
    EXPECT_EQ(Latin1FromUtf8("\xC2\x9F"), std::nullopt);
    EXPECT_EQ(Latin1FromUtf8("€"), std::nullopt);
    EXPECT_EQ(Latin1FromUtf8("\xC2\x80"), std::nullopt);
}

TEST(Encodings, AreToldApartByWhatTheBytesLookLike)
{
    struct Text {
        std::string bytes;
        bool isLikely;
        std::optional<long long> badLine;
    };
    const Text texts[] = {
        {"", false, std::nullopt},
        {"Jose\n", false, std::nullopt},
        {"José\n€\n", true, std::nullopt},
        {"José\nb\nJos\xE9\n", true, 3},
        {"Jos\xE9\nb\nJos\xE9\n", false, 1},
        {"a\nJos\xE9\nJosé\n", true, 2},
        {"a\rb\rJos\xE9\r", false, 3},
        {"a\r\nJos\xE9\r\n", false, 2},
        {"\xC0\x80", false, 1},
    };
    for (const Text& text : texts) {
        const Utf8Reading reading = ReadAsUtf8(text.bytes);
        EXPECT_EQ(reading.isLikely, text.isLikely) << text.bytes;
        EXPECT_EQ(reading.badLine, text.badLine) << text.bytes;
    }
}

} // namespace kova::family::csv::test
