#include "reports/qt/output.hpp"

#include "reports/qt/page_painter.hpp"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace kova::paper {

namespace {

constexpr double TwipsOfPoint = 20.0;
/// Papers of the same name differ by less, in millimetres.
constexpr double PaperTolerance = 1.0;

/// The usual paper of the document's size, without margins: its texts keep their own distance from the edge.
QPageLayout PaperOf(const reports::Document& document)
{
    const QSizeF size(static_cast<double>(document.paperWidth) / TwipsOfPoint,
                      static_cast<double>(document.paperHeight) / TwipsOfPoint);
    const bool isLandscape = size.width() > size.height();
    const QPageSize paper(isLandscape ? size.transposed() : size, QPageSize::Point, QString(),
                          QPageSize::FuzzyMatch);
    constexpr QMarginsF none;
    return QPageLayout(paper, isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, none);
}

bool HasPaperOf(const QPrinter& printer, const reports::Document& document)
{
    const QSizeF chosen = printer.paperRect(QPrinter::Millimeter).size();
    const QSizeF needed = PaperOf(document).fullRect(QPageLayout::Millimeter).size();
    return std::abs(chosen.width() - needed.width()) < PaperTolerance
        && std::abs(chosen.height() - needed.height()) < PaperTolerance;
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

Range RangeOf(const QPrinter& printer, std::size_t pages, std::optional<std::size_t> currentPage)
{
    if (printer.printRange() == QPrinter::CurrentPage && currentPage)
        return {*currentPage, *currentPage};
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() < 1)
        return {0, pages - 1};
    const auto from = static_cast<std::size_t>(printer.fromPage());
    const auto to = static_cast<std::size_t>(std::max(printer.fromPage(), printer.toPage()));
    return {std::min(from, pages) - 1, std::min(to, pages) - 1};
}

/// From twips to the printer's dots; smaller where the sheet is, unless pages keep their size.
double ScaleOf(const QPrinter& printer, const reports::Document& document, bool keepsSize)
{
    const double own = printer.resolution() / TwipsOfInch;
    if (keepsSize)
        return own;
    const QRectF sheet = printer.paperRect(QPrinter::DevicePixel);
    return std::min({own, sheet.width() / static_cast<double>(document.paperWidth),
                     sheet.height() / static_cast<double>(document.paperHeight)});
}

/// People's names and addresses stand in it. Where a disk knows no rights, it is written all the same.
void KeepFromOthers(QFileDevice& file)
{
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

/// A file into which is printed is made here, so that it is its owner's alone from the first byte on. What
/// keeps it from being made, the printing tells.
void PrepareFileOf(const QPrinter& printer)
{
    const QFileInfo place(printer.outputFileName());
    if (place.filePath().isEmpty() || (place.exists() && !place.isFile()))
        return;
    QFile file(place.filePath());
    if (file.open(QIODevice::WriteOnly))
        KeepFromOthers(file);
}

bool HasFailed(const QPrinter& printer)
{
    return printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
}

/// Whether a file into which was printed has its end, without which no program opens it: of a disk that is
/// full at the last the printing tells nothing.
bool HasItsEnd(const QPrinter& printer)
{
    constexpr qint64 longestEnd = 16;
    QFile file(printer.outputFileName());
    if (!QFileInfo(file).isFile())
        return true;
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - longestEnd))
        && file.readAll().contains("%%EOF");
}

} // namespace

QString WritePdf(const reports::Document& document, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return NotWritten(path, WhyClosed(path));
    KeepFromOthers(file);
    QPdfWriter writer(&file);
    writer.setResolution(static_cast<int>(TwipsOfInch));
    writer.setTitle(QString::fromStdString(document.title));
    writer.setCreator(QCoreApplication::applicationName());
    writer.setPageLayout(PaperOf(document));
    QPainter painter;
    bool isWritten = painter.begin(&writer);
    for (std::size_t page = 0; isWritten && page < document.pages.size(); ++page) {
        isWritten = page == 0 || writer.newPage();
        if (isWritten)
            PaintPage(painter, document.pages[page]);
    }
    // What could not be written on the way is told at the end.
    if (isWritten && painter.end() && file.commit())
        return {};
    return NotWritten(path, QStringLiteral("Não há espaço no disco ou o disco não responde."));
}

void Prepare(QPrinter& printer, const reports::Document& document)
{
    printer.setPageLayout(PaperOf(document));
    printer.setFullPage(true);
    printer.setDocName(QString::fromStdString(document.title));
    printer.setCreator(QCoreApplication::applicationName());
}

QString Print(QPrinter& printer, const reports::Document& document, const Printing& printing)
{
    const bool keepsSize = !printing.otherPaper.isEmpty();
    if (keepsSize && !HasPaperOf(printer, document))
        return printing.otherPaper;
    const Range range = RangeOf(printer, document.pages.size(), printing.currentPage);
    printer.setFullPage(true);
    PrepareFileOf(printer);
    QPainter painter;
    if (!painter.begin(&printer))
        return printing.printerGone;
    const double scale = ScaleOf(printer, document, keepsSize);
    painter.scale(scale, scale);
    for (std::size_t page = range.first; page <= range.last; ++page) {
        if (page > range.first && !printer.newPage())
            return printing.printerGone;
        PaintPage(painter, document.pages[page]);
        if (HasFailed(printer))
            return printing.printerGone;
    }
    const bool isPrinted = painter.end() && !HasFailed(printer) && HasItsEnd(printer);
    return isPrinted ? QString() : printing.printerGone;
}

} // namespace kova::paper
