#include "reports/qt/font_metrics.hpp"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>

namespace kova::qt::test {
namespace {

TEST(ReportMetrics, MeasureATextAsThePainterDrawsIt)
{
    const paper::FontMetrics metrics;
    for (const reports::TextFont font : {reports::TextFont{8.25F, false}, reports::TextFont{9.75F, true},
                                         reports::TextFont{20.25F, false}, reports::TextFont{24, true}}) {
        const QFontMetricsF drawn(paper::PageFont(font));
        for (const char* text : {"", "a", "fila oficial de afflição", "AV To Wa 11,1.",
                                 "Ação à tarde: 10:15 (ñ)", "Página “1” – fim…", "żółć ₿ 犬"}) {
            const double expected = drawn.horizontalAdvance(QString::fromUtf8(text));
            EXPECT_NEAR(static_cast<double>(metrics.Width(text, font)), expected, 0.05) << text;
        }
    }
}

TEST(ReportMetrics, GrowWithTheFontAlsoBetweenWholeTwips)
{
    const paper::FontMetrics metrics;
    const Twips whole = metrics.Width("Agendamento", {10, false});
    EXPECT_NEAR(metrics.Width("Agendamento", {10 * 0.8713F, false}), whole * 0.8713F, whole * 0.002F);
    EXPECT_NEAR(metrics.LineHeight({10 * 0.8713F, false}), metrics.LineHeight({10, false}) * 0.8713F, 0.5F);
}

TEST(ReportMetrics, AreThoseOfArial)
{
    const paper::FontMetrics metrics;
    const reports::TextFont font{9.75F, false};
    EXPECT_TRUE(QFontInfo(paper::PageFont(font)).family() == QStringLiteral("Arial")
                || QFontInfo(paper::PageFont(font)).family() == QStringLiteral("Liberation Sans"));
    EXPECT_NEAR(metrics.Width("10:15", font), 4 * 195 * 0.5562F + 195 * 0.2778F, 1);
    EXPECT_LE(metrics.LineHeight(font), 225) << "a line fits the boxes of the layouts";
    EXPECT_LE(metrics.InkHeight(font), metrics.LineHeight(font));
}

} // namespace
} // namespace kova::qt::test
