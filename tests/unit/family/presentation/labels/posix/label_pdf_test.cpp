// What programs of the system read in labels that were saved or printed.

#include "tests/unit/family/presentation/labels/label_fixture.hpp"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace kova::family::test {
namespace {

class LabelPdf : public LabelTest {
protected:
    /// Left and top edges of a word's places on the sheets, in millimetres, in their order.
    static std::vector<QPointF> PlacesOf(const QString& word, const QString& path)
    {
        const QString boxes = kova::test::OutputOf(QStringLiteral("pdftotext"),
                                                   {QStringLiteral("-bbox"), path, QStringLiteral("-")});
        const QRegularExpression place(
            QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>%1<").arg(word));
        std::vector<QPointF> places;
        for (auto found = place.globalMatch(boxes); found.hasNext();) {
            const auto match = found.next();
            places.emplace_back(match.captured(1).toDouble() * 25.4 / 72,
                                match.captured(2).toDouble() * 25.4 / 72);
        }
        return places;
    }
};

TEST_F(LabelPdf, HoldsTheAddressInReadingOrder)
{
    ASSERT_EQ(paper::WritePdf(PagesOf("A4-2x7", 3, 1), File("e.pdf")).toStdString(), "");
    EXPECT_EQ(TextOf(File("e.pdf")), LabelText);
}

TEST_F(LabelPdf, HasTheSheetsSizeTitleAndFonts)
{
    ASSERT_EQ(paper::WritePdf(PagesOf("A4-2x7", 0, 1), File("a4.pdf")).toStdString(), "");
    ASSERT_EQ(paper::WritePdf(PagesOf("carta-3x10", 0, 1), File("carta.pdf")).toStdString(), "");
    const QString facts = kova::test::OutputOf(QStringLiteral("pdfinfo"), {File("a4.pdf")}).simplified();
    EXPECT_TRUE(facts.contains(QStringLiteral("Title: Etiqueta de endereço - José"))) << facts.toStdString();
    EXPECT_TRUE(facts.contains(QStringLiteral("Page size: 595 x 842 pts (A4)"))) << facts.toStdString();
    const QString letter = kova::test::OutputOf(QStringLiteral("pdfinfo"), {File("carta.pdf")}).simplified();
    EXPECT_TRUE(letter.contains(QStringLiteral("Page size: 612 x 792 pts (letter)"))) << letter.toStdString();
    const QStringList fonts = kova::test::OutputOf(QStringLiteral("pdffonts"), {File("a4.pdf")})
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                                  .mid(2);
    EXPECT_EQ(fonts.size(), 2);
    for (const QString& font : fonts) {
        const QStringList columns = font.simplified().split(QLatin1Char(' '));
        // embedded, with the way back to characters
        EXPECT_EQ(columns.mid(columns.size() - 5, 3).join(QLatin1Char(' ')).toStdString(), "yes no yes")
            << font.toStdString();
    }
}

TEST_F(LabelPdf, PutsTheCopiesExactlyALabelApart)
{
    ASSERT_EQ(paper::WritePdf(PagesOf("carta-3x10", 28, 32), File("e.pdf")).toStdString(), "");
    const std::vector<QPointF> places = PlacesOf(QStringLiteral("Peçanha"), File("e.pdf"));
    ASSERT_EQ(places.size(), 32U);
    // The second sheet begins with the third copy; its labels are read row by row or column by column.
    std::vector<QPointF> second(places.begin() + 2, places.end());
    std::ranges::sort(second, [](const QPointF& a, const QPointF& b) {
        return std::abs(a.y() - b.y()) > 1 ? a.y() < b.y() : a.x() < b.x();
    });
    for (std::size_t label = 0; label < second.size(); ++label) {
        EXPECT_NEAR(second[label].x() - second[0].x(), static_cast<double>(label % 3) * 69.85, 0.03) << label;
        EXPECT_NEAR(second[label].y() - second[0].y(), static_cast<double>(label / 3) * 25.4, 0.03) << label;
    }
    EXPECT_NEAR(places[0].x(), second[28].x(), 0.01) << "the last two labels of the sheet before";
    EXPECT_NEAR(places[0].y(), second[28].y(), 0.01);
}

TEST_F(LabelPdf, GoesOnOnTheNextSheets)
{
    ASSERT_EQ(paper::WritePdf(PagesOf("A4-2x7", 13, 2), File("e.pdf")).toStdString(), "");
    EXPECT_EQ(TextOf(File("e.pdf")), std::string(LabelText) + " | " + LabelText);
}

TEST_F(LabelPdf, GoesToThePrinterAsItGoesIntoThePdf)
{
    const reports::Document pages = PagesOf("A4-2x7", 13, 2);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("papel.pdf"));
    paper::Prepare(printer, pages);
    ASSERT_EQ(paper::Print(printer, pages, LabelPrinting(LabelSheetOf("A4-2x7"))).toStdString(), "");
    ASSERT_EQ(paper::WritePdf(pages, File("e.pdf")).toStdString(), "");
    EXPECT_EQ(TextOf(File("papel.pdf")), TextOf(File("e.pdf")));
    const auto printed = PlacesOf(QStringLiteral("Peçanha"), File("papel.pdf"));
    const auto saved = PlacesOf(QStringLiteral("Peçanha"), File("e.pdf"));
    ASSERT_EQ(printed.size(), saved.size());
    for (std::size_t label = 0; label < saved.size(); ++label) {
        EXPECT_NEAR(printed[label].x(), saved[label].x(), 0.05);
        EXPECT_NEAR(printed[label].y(), saved[label].y(), 0.05);
    }
}

TEST_F(LabelPdf, PrintsTheSheetsThatWereAskedFor)
{
    const reports::Document pages = PagesOf("A4-2x7", 0, 30);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("papel.pdf"));
    paper::Prepare(printer, pages);
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(3, 9);
    ASSERT_EQ(paper::Print(printer, pages, LabelPrinting(LabelSheetOf("A4-2x7"))).toStdString(), "");
    EXPECT_EQ(TextOf(File("papel.pdf")), std::string(LabelText) + " " + LabelText);
}

} // namespace
} // namespace kova::family::test
