#include "family/presentation/labels/label_desk.hpp"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace kova::family {

namespace {

/// With the line breaks that message boxes take.
Text BoxText(QString text) { return text.replace(QLatin1Char('\n'), QLatin1String("\r\n")).toStdString(); }

} // namespace

QString LabelDesk::AskPdfPath(QWidget* over, const QString& proposal)
{
    QFileDialog dialog(over, QStringLiteral("Salvar em PDF"), proposal,
                       QStringLiteral("Documentos PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    return isChosen ? dialog.selectedFiles().front() : QString();
}

bool LabelDesk::HasPrinter() const { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

bool LabelDesk::ChoosePrinter(QWidget* over, QPrinter& printer, int sheets)
{
    QPrintDialog dialog(&printer, over);
    dialog.setWindowTitle(QStringLiteral("Imprimir"));
    dialog.setMinMax(1, sheets);
    return dialog.exec() == QDialog::Accepted;
}

void LabelDesk::Tell(MessageKind kind, const QString& text)
{
    toolkit_.MessageBox(kind, BoxText(text), title_);
}

bool LabelDesk::Ask(const QString& text)
{
    return toolkit_.MessageBox(MessageKind::Question, BoxText(text), title_) == Reply::Yes;
}

} // namespace kova::family
