#include "reports/qt/delivery.hpp"

#include <QCursor>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPrinter>
#include <QStandardPaths>

namespace kova::paper {

namespace {

/// Where the last document of this library was saved; the next one is proposed there.
QString& LastFolder()
{
    static QString folder;
    return folder;
}

/// The user's documents; the home folder where there is none for them.
QString DocumentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

QString ProposedPath(const reports::Document& document, Date day)
{
    // It may be gone, as a stick that was pulled out.
    const bool isThere = !LastFolder().isEmpty() && QDir(LastFolder()).exists();
    const QString folder = isThere ? LastFolder() : DocumentsFolder();
    return QDir(folder).filePath(FileNameOf(QString::fromStdString(document.title), day));
}

class BusyCursor {
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace

Delivered PrintFrom(QWidget& over, PaperDesk& desk, const reports::Document& document,
                    const Printing& printing)
{
    if (!desk.HasPrinter()) {
        desk.Tell(&over, MessageKind::Information,
                  QStringLiteral("Nenhuma impressora foi encontrada neste computador.\n\n"
                                 "Instale uma impressora ou use \"Salvar em PDF\"."));
        return {};
    }
    QPrinter printer(QPrinter::HighResolution);
    Prepare(printer, document);
    if (!desk.ChoosePrinter(&over, printer, document.pages.size(), printing.currentPage.has_value()))
        return {};
    QString trouble;
    {
        const BusyCursor busy;
        trouble = Print(printer, document, printing);
    }
    if (!trouble.isEmpty()) {
        desk.Tell(&over, MessageKind::Critical, trouble);
        return {};
    }
    desk.Gone(&over, document, {});
    return {QStringLiteral("Enviado para a impressora"), {}};
}

Delivered SaveFrom(QWidget& over, PaperDesk& desk, const reports::Document& document, Date day)
{
    const QString path = desk.AskPdfPath(&over, ProposedPath(document, day));
    if (path.isEmpty())
        return {};
    QString trouble;
    {
        const BusyCursor busy;
        trouble = WritePdf(document, path);
    }
    if (!trouble.isEmpty()) {
        desk.Tell(&over, MessageKind::Critical, trouble);
        return {};
    }
    LastFolder() = QFileInfo(path).absolutePath();
    desk.Gone(&over, document, path);
    return {QStringLiteral("Salvo em %1").arg(QFileInfo(path).fileName()), path};
}

QString FileNameOf(const QString& title, Date day)
{
    QString name;
    for (const QChar character : title)
        name += QStringLiteral("/\\:*?\"<>|").contains(character) ? QChar(u' ') : character;
    name = name.simplified();
    return QStringLiteral("%1 %2-%3-%4.pdf")
        .arg(name.isEmpty() ? QStringLiteral("Relatório") : name)
        .arg(day.year, 4, 10, QLatin1Char('0'))
        .arg(day.month, 2, 10, QLatin1Char('0'))
        .arg(day.day, 2, 10, QLatin1Char('0'));
}

} // namespace kova::paper
