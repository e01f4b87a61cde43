#include "toolkits/qt/report_output.hpp"

#include "toolkits/qt/report_painter.hpp"
#include "toolkits/qt/theme.hpp"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <algorithm>

namespace kova::qt {

namespace {

QPageLayout PaperOf(const reports::Document& document)
{
    const bool isLandscape = document.paperWidth > document.paperHeight;
    constexpr QMarginsF none;
    return QPageLayout(QPageSize(QPageSize::A4), isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                       none);
}

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

/// First and last page to print, from 0.
struct Range {
    std::size_t first = 0;
    std::size_t last = 0;
};

Range RangeOf(const QPrinter& printer, std::size_t pages, std::size_t currentPage)
{
    if (printer.printRange() == QPrinter::CurrentPage)
        return {currentPage, currentPage};
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() < 1)
        return {0, pages - 1};
    const auto from = static_cast<std::size_t>(printer.fromPage());
    const auto to = static_cast<std::size_t>(std::max(printer.fromPage(), printer.toPage()));
    return {std::min(from, pages) - 1, std::min(to, pages) - 1};
}

double ScaleOf(const QPrinter& printer, const reports::Document& document)
{
    const QRectF sheet = printer.paperRect(QPrinter::DevicePixel);
    return std::min({printer.resolution() / TwipsOfInch,
                     sheet.width() / static_cast<double>(document.paperWidth),
                     sheet.height() / static_cast<double>(document.paperHeight)});
}

QString PrinterGone()
{
    return QStringLiteral("A impressora deixou de responder e a impressão foi interrompida.\n\n"
                          "Verifique se ela está ligada e conectada, ou salve o documento em PDF.");
}

bool HasFailed(const QPrinter& printer)
{
    return printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
}

} // namespace

QString WritePdf(const reports::Document& document, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return NotWritten(path, WhyClosed(path));
    QPdfWriter writer(&file);
    writer.setResolution(static_cast<int>(TwipsOfInch));
    writer.setTitle(FromText(document.title));
    writer.setCreator(QCoreApplication::applicationName());
    writer.setPageLayout(PaperOf(document));
    QPainter painter;
    bool isWritten = painter.begin(&writer);
    for (std::size_t page = 0; isWritten && page < document.pages.size(); ++page) {
        isWritten = page == 0 || writer.newPage();
        if (isWritten)
            PaintPage(painter, document.pages[page]);
    }
    isWritten = isWritten && painter.end() && file.error() == QFileDevice::NoError;
    if (isWritten && file.commit())
        return {};
    return NotWritten(path, QStringLiteral("Não há espaço no disco ou o disco não responde."));
}

void PrepareForReport(QPrinter& printer, const reports::Document& document)
{
    printer.setPageLayout(PaperOf(document));
    printer.setFullPage(true);
    printer.setDocName(FromText(document.title));
    printer.setCreator(QCoreApplication::applicationName());
}

QString Print(QPrinter& printer, const reports::Document& document, std::size_t currentPage)
{
    const Range range = RangeOf(printer, document.pages.size(), currentPage);
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer))
        return PrinterGone();
    const double scale = ScaleOf(printer, document);
    painter.scale(scale, scale);
    for (std::size_t page = range.first; page <= range.last; ++page) {
        if (page > range.first && !printer.newPage())
            return PrinterGone();
        PaintPage(painter, document.pages[page]);
        if (HasFailed(printer))
            return PrinterGone();
    }
    return painter.end() && !HasFailed(printer) ? QString() : PrinterGone();
}

} // namespace kova::qt
