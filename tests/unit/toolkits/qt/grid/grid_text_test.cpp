#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/grid/grid_text.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QPainter>

#include <array>

namespace kova::qt::test {
namespace {

constexpr QRect Cell(10, 10, 100, 40);

/// Texts of cells on a white sheet of 120 x 60 pixels.
class CellTexts : public ::testing::Test {
protected:
    CellTexts() { text_.SetFont(MakeFont("Arial", 9)); }

    QImage Painted(const std::string& text, Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop,
                   bool bold = false, bool wraps = false, const QRect& cell = Cell)
    {
        QImage image(120, 60, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        text_.Paint(painter, text, cell, alignment, bold, wraps);
        return image;
    }
    /// Where there is ink.
    static QRect InkOf(const QImage& image)
    {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).lightness() < 200)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

    GridText text_;
};

TEST_F(CellTexts, StandWhereTheyAreAligned)
{
    const QRect topLeft = InkOf(Painted("Rex"));
    const QRect centre = InkOf(Painted("Rex", Qt::AlignHCenter | Qt::AlignVCenter));
    const QRect bottomRight = InkOf(Painted("Rex", Qt::AlignRight | Qt::AlignBottom));
    EXPECT_EQ(topLeft.size(), centre.size());
    EXPECT_EQ(topLeft.size(), bottomRight.size());
    EXPECT_LE(topLeft.left(), Cell.left() + 2);
    EXPECT_GE(bottomRight.right(), Cell.right() - 2);
    EXPECT_NEAR(centre.center().x(), Cell.center().x(), 1);
    EXPECT_LT(topLeft.top(), centre.top());
    EXPECT_LT(centre.bottom(), bottomRight.bottom());
}

TEST_F(CellTexts, AreWiderInBold)
{
    EXPECT_GT(InkOf(Painted("Tosa completa", {}, true)).width(), InkOf(Painted("Tosa completa")).width());
}

TEST_F(CellTexts, BreakBetweenWordsOnlyWhereTheyMay)
{
    const std::string text = "Uma tosa completa na tesoura";
    const QRect one = InkOf(Painted(text));
    const QRect two = InkOf(Painted(text, {}, false, true));
    EXPECT_GT(two.height(), one.height() + 8);
    EXPECT_TRUE(Cell.contains(one)) << "cut by an ellipsis";
    EXPECT_TRUE(Cell.contains(two));
}

TEST_F(CellTexts, BreakAtLineEnds)
{
    EXPECT_GT(InkOf(Painted("Rex\r\nBia")).height(), InkOf(Painted("Rex")).height() + 8);
    EXPECT_EQ(Painted("Rex\r\nBia"), Painted("Rex\nBia"));
}

TEST_F(CellTexts, KeepEachLineToItself)
{
    const QRect sheet(0, 0, 120, 60);
    const QImage lines = Painted("i\nmmm\ni\nmm", {}, false, false, sheet);
    const int height = QFontMetrics(MakeFont("Arial", 9)).height();
    ASSERT_GE(sheet.height(), 4 * height);
    const std::array<const char*, 4> texts{"i", "mmm", "i", "mm"};
    for (std::size_t at = 0; at < texts.size(); ++at) {
        const QRect line(0, static_cast<int>(at) * height, sheet.width(), height);
        EXPECT_NEAR(InkOf(lines.copy(line)).width(), InkOf(Painted(texts[at])).width(), 1) << at;
    }
}

TEST_F(CellTexts, EndWithAnEllipsisWhereLinesDoNotFit)
{
    const QRect cell(10, 10, 100, 18);
    EXPECT_EQ(Painted("Rex\r\nBia\r\nLua", {}, false, false, cell),
              Painted("Rex Bia Lua", {}, false, false, cell));
}

TEST_F(CellTexts, OfOtherScriptsAreDrawnToo)
{
    EXPECT_FALSE(InkOf(Painted("собака")).isEmpty());
    EXPECT_FALSE(InkOf(Painted("Rex \t собака")).isEmpty());
}

TEST_F(CellTexts, NeedRoom)
{
    EXPECT_TRUE(InkOf(Painted("Rex", {}, false, false, QRect(10, 10, 0, 40))).isNull());
    EXPECT_TRUE(InkOf(Painted("")).isNull());
    EXPECT_FALSE(InkOf(Painted("i", {}, false, false, QRect(10, 10, 4, 40))).isNull());
}

TEST_F(CellTexts, AreLaidOutAnewInAnotherFontOnly)
{
    const QImage small = Painted("Rex");
    text_.SetFont(MakeFont("Arial", 9));
    EXPECT_EQ(Painted("Rex"), small);
    text_.SetFont(MakeFont("Arial", 14));
    EXPECT_GT(InkOf(Painted("Rex")).height(), InkOf(small).height());
}

} // namespace
} // namespace kova::qt::test
