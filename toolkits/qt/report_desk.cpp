#include "toolkits/qt/report_desk.hpp"

#include "toolkits/qt/message_box.hpp"
#include "toolkits/qt/theme.hpp"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace kova::qt {

QString ReportDesk::AskPdfPath(QWidget* over, const QString& proposal)
{
    QFileDialog dialog(over, QStringLiteral("Salvar em PDF"), proposal,
                       QStringLiteral("Documentos PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    return isChosen ? dialog.selectedFiles().front() : QString();
}

bool ReportDesk::HasPrinter() const { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

bool ReportDesk::ChoosePrinting(QWidget* over, QPrinter& printer, std::size_t pages)
{
    QPrintDialog dialog(&printer, over);
    dialog.setWindowTitle(QStringLiteral("Imprimir"));
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, true);
    dialog.setMinMax(1, static_cast<int>(pages));
    return dialog.exec() == QDialog::Accepted;
}

void ReportDesk::Tell(QWidget* over, MessageKind kind, const QString& text, const QString& title)
{
    ShowMessageBox(over, kind, ToText(text), ToText(title));
}

} // namespace kova::qt
