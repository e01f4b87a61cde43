// Items of a page as they are drawn.

#include "reports/qt/page_painter.hpp"

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <utility>

namespace kova::qt::test {
namespace {

class PagePainter : public ::testing::Test {
protected:
    static reports::Item TextOf(float size)
    {
        reports::Item item;
        item.font.size = size;
        item.lines.push_back({.text = "Banho", .left = 2, .top = 1});
        return item;
    }

    /// On a page of 40 by 20 twips, each of which is five pixels.
    static QImage Drawn(const reports::Item& item)
    {
        constexpr double dots = 5 * paper::TwipsOfInch;
        return paper::PictureOf({"", 40, 20, 1, {{{item}}}}, 0, dots);
    }

    /// How many columns lie between the first and the last ink.
    static int WidthOfInk(const QImage& picture)
    {
        int first = picture.width();
        int last = -1;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixelColor(x, y).lightness() < 128) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
            }
        }
        return last - first + 1;
    }
};

TEST_F(PagePainter, DrawsATextAsLargeAsItIsAlsoBetweenWholeTwips)
{
    // 10 twips, and 10.4.
    const double whole = WidthOfInk(Drawn(TextOf(0.5F)));
    ASSERT_GT(whole, 50);
    EXPECT_NEAR(WidthOfInk(Drawn(TextOf(0.52F))), whole * 1.04, 2);
    EXPECT_GT(WidthOfInk(Drawn(TextOf(0.52F))), whole + 2);
}

TEST_F(PagePainter, DrawsColoursOfTheScreenBlack)
{
    reports::Item rule;
    rule.kind = reports::ItemKind::Band;
    rule.box = {0, 0, 20, 20};
    for (const auto& [color, ink] :
         {std::pair{Colour{-2147483640}, QColor(Qt::black)}, std::pair{colours::Black, QColor(Qt::black)},
          std::pair{static_cast<Colour>(Rgb(10, 20, 30)), QColor(10, 20, 30)}}) {
        rule.color = color;
        EXPECT_EQ(Drawn(rule).pixelColor(50, 50), ink) << color;
    }
}

} // namespace
} // namespace kova::qt::test
