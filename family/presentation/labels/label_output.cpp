#include "family/presentation/labels/label_output.hpp"

#include "family/presentation/labels/label_painter.hpp"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace kova::family {

namespace {

/// Papers of the same name differ by less.
constexpr double PaperTolerance = 1.0;

QPageLayout PaperOf(const LabelSheet& sheet)
{
    const auto size = sheet.paper == LabelPaper::A4 ? QPageSize::A4 : QPageSize::Letter;
    return QPageLayout(QPageSize(size), QPageLayout::Portrait, QMarginsF());
}

QString Title(const LabelJob& job) { return QString::fromStdString(job.pages.title); }

QString NotWritten(const QString& path, const QString& cause)
{
    return QStringLiteral("Não foi possível salvar o arquivo \"%1\".\n%2\n\n"
                          "Escolha outra pasta ou outro nome e salve novamente.")
        .arg(path, cause);
}

QString WhyClosed(const QString& path)
{
    return QFileInfo(QFileInfo(path).absolutePath()).exists()
        ? QStringLiteral("A pasta ou o arquivo não permite gravação.")
        : QStringLiteral("A pasta não existe.");
}

QString PrinterGone()
{
    return QStringLiteral("A impressora deixou de responder e a impressão foi interrompida.\n\n"
                          "Verifique se ela está ligada e conectada, ou salve as etiquetas em PDF.");
}

QString OtherPaper(const LabelSheet& sheet)
{
    const QString paper = sheet.paper == LabelPaper::A4 ? QStringLiteral("A4") : QStringLiteral("Carta");
    return QStringLiteral("O papel escolhido na impressora não é o da folha de etiquetas, e as etiquetas "
                          "sairiam fora do lugar.\n\nEscolha o papel %1 nas propriedades da impressora e "
                          "imprima novamente.")
        .arg(paper);
}

bool HasPaperOf(const QPrinter& printer, const LabelSheet& sheet)
{
    const QSizeF chosen = printer.paperRect(QPrinter::Millimeter).size();
    const QSizeF needed = PaperOf(sheet).fullRect(QPageLayout::Millimeter).size();
    return std::abs(chosen.width() - needed.width()) < PaperTolerance
        && std::abs(chosen.height() - needed.height()) < PaperTolerance;
}

bool HasFailed(const QPrinter& printer)
{
    return printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
}

/// Draws the sheets from `first` to `last` (from 0), each on a page of the device.
bool PaintSheets(QPainter& painter, QPagedPaintDevice& device, const LabelJob& job, std::size_t first,
                 std::size_t last)
{
    const double scale = painter.device()->logicalDpiX() / TwipsOfInch;
    painter.scale(scale, scale);
    for (std::size_t sheet = first; sheet <= last; ++sheet) {
        if (sheet > first && !device.newPage())
            return false;
        PaintLabels(painter, job.pages.pages[sheet]);
    }
    return painter.end();
}

} // namespace

QString WriteLabelPdf(const LabelJob& job, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return NotWritten(path, WhyClosed(path));
    QPdfWriter writer(&file);
    writer.setResolution(static_cast<int>(TwipsOfInch));
    writer.setTitle(Title(job));
    writer.setCreator(QCoreApplication::applicationName());
    writer.setPageLayout(PaperOf(*job.sheet));
    QPainter painter;
    const bool isWritten = painter.begin(&writer)
        && PaintSheets(painter, writer, job, 0, job.pages.pages.size() - 1)
        && file.error() == QFileDevice::NoError;
    if (isWritten && file.commit())
        return {};
    return NotWritten(path, QStringLiteral("Não há espaço no disco ou o disco não responde."));
}

void PrepareForLabels(QPrinter& printer, const LabelJob& job)
{
    printer.setPageLayout(PaperOf(*job.sheet));
    printer.setFullPage(true);
    printer.setDocName(Title(job));
    printer.setCreator(QCoreApplication::applicationName());
}

QString PrintLabels(QPrinter& printer, const LabelJob& job)
{
    if (!HasPaperOf(printer, *job.sheet))
        return OtherPaper(*job.sheet);
    printer.setFullPage(true);
    const auto last = static_cast<int>(job.pages.pages.size());
    const bool isRange = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int from = isRange ? std::min(printer.fromPage(), last) : 1;
    const int to = isRange ? std::clamp(printer.toPage(), from, last) : last;
    QPainter painter;
    const bool isPrinted = painter.begin(&printer)
        && PaintSheets(painter, printer, job, static_cast<std::size_t>(from) - 1,
                       static_cast<std::size_t>(to) - 1);
    return isPrinted && !HasFailed(printer) ? QString() : PrinterGone();
}

} // namespace kova::family
