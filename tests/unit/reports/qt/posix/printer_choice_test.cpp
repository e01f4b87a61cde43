// The dialog for printers where the toolkit draws it itself.

#include "reports/qt/paper_desk.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>

namespace kova::qt::test {
namespace {

class Desk final : public paper::PaperDesk {
public:
    void Tell(QWidget*, MessageKind, const QString&) override { }
};

TEST(PrinterChoice, AsksForThePrinterAndThePages)
{
    const QTemporaryDir folder;
    for (const bool isAccepted : {true, false}) {
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(QStringLiteral("papel.pdf")));
        QTimer::singleShot(0, qApp, [isAccepted] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Imprimir"));
            EXPECT_EQ(dialog->minPage(), 1);
            EXPECT_EQ(dialog->maxPage(), 5);
            dialog->done(isAccepted ? QDialog::Accepted : QDialog::Rejected);
        });
        EXPECT_EQ(Desk().ChoosePrinter(nullptr, printer, 5, true), isAccepted);
    }
}

} // namespace
} // namespace kova::qt::test
