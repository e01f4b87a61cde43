// Labels as files and on printers.

#include "tests/unit/family/presentation/labels/label_fixture.hpp"

namespace kova::family::test {
namespace {

class LabelOutput : public LabelTest { };

TEST_F(LabelOutput, TellsInPortugueseWhyAFileCannotBeWritten)
{
    const reports::Document pages = PagesOf("A4-2x7", 0, 1);
    EXPECT_EQ(paper::WritePdf(pages, File("nada/e.pdf")).toStdString(),
              "Não foi possível salvar o arquivo \"" + File("nada/e.pdf").toStdString()
                  + "\".\nA pasta não existe.\n\nEscolha outra pasta ou outro nome e salve novamente.");
    EXPECT_TRUE(paper::WritePdf(pages, folder_.path()).contains(QStringLiteral("não permite gravação")));
    EXPECT_TRUE(paper::WritePdf(pages, QStringLiteral("/proc/e.pdf"))
                    .contains(QStringLiteral("não permite gravação")));
}

/// A printer that takes that many more pages and then is gone.
class VanishingPrinter final : public QPrinter {
public:
    VanishingPrinter(const QString& file, int pages) : QPrinter(QPrinter::HighResolution), pages_(pages)
    {
        setOutputFormat(QPrinter::PdfFormat);
        setOutputFileName(file);
    }
    bool newPage() override { return pages_-- > 0 && QPrinter::newPage(); }

private:
    int pages_;
};

TEST_F(LabelOutput, TellsOfAPrinterThatVanishesInTheMiddleOfTheJob)
{
    const reports::Document pages = PagesOf("A4-2x7", 0, 40);
    VanishingPrinter whole(File("papel.pdf"), 2);
    paper::Prepare(whole, pages);
    EXPECT_EQ(paper::Print(whole, pages, LabelPrinting(LabelSheetOf("A4-2x7"))).toStdString(), "");
    VanishingPrinter printer(File("meio.pdf"), 1);
    paper::Prepare(printer, pages);
    EXPECT_TRUE(paper::Print(printer, pages, LabelPrinting(LabelSheetOf("A4-2x7")))
                    .startsWith(QStringLiteral("A impressora deixou de responder")));
}

TEST_F(LabelOutput, RefusesAPaperThatIsNotTheSheets)
{
    const reports::Document pages = PagesOf("A4-2x7", 0, 1);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("papel.pdf"));
    paper::Prepare(printer, pages);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    const QString trouble = paper::Print(printer, pages, LabelPrinting(LabelSheetOf("A4-2x7")));
    EXPECT_TRUE(trouble.contains(QStringLiteral("Escolha o papel A4"))) << trouble.toStdString();
    EXPECT_FALSE(QFile::exists(File("papel.pdf")));
}

} // namespace
} // namespace kova::family::test
