#include "reports/qt/paper_desk.hpp"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace kova::paper {

QString PaperDesk::AskPdfPath(QWidget* over, const QString& proposal)
{
    QFileDialog dialog(over, QStringLiteral("Salvar em PDF"), proposal,
                       QStringLiteral("Documentos PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    return isChosen ? dialog.selectedFiles().front() : QString();
}

void PaperDesk::Gone(QWidget*, const reports::Document&, const QString&) { }

bool PaperDesk::HasPrinter() const { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

bool PaperDesk::ChoosePrinter(QWidget* over, QPrinter& printer, std::size_t pages, bool hasCurrentPage)
{
    QPrintDialog dialog(&printer, over);
    dialog.setWindowTitle(QStringLiteral("Imprimir"));
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, hasCurrentPage);
    dialog.setMinMax(1, static_cast<int>(pages));
    return dialog.exec() == QDialog::Accepted;
}

} // namespace kova::paper
