// What the label window sends out: to a printer, into a PDF.

#include "family/presentation/labels/label_window.hpp"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QPrinter>
#include <QStandardPaths>

namespace kova::family {

namespace {

/// Where the last labels were saved; the next ones are proposed there.
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

/// A title and a day as a file's name.
QString FileName(const QString& title, Date day)
{
    QString name;
    for (const QChar character : title)
        name += QStringLiteral("/\\:*?\"<>|").contains(character) ? QChar(u' ') : character;
    return QStringLiteral("%1 %2-%3-%4.pdf")
        .arg(name.simplified())
        .arg(day.year, 4, 10, QLatin1Char('0'))
        .arg(day.month, 2, 10, QLatin1Char('0'))
        .arg(day.day, 2, 10, QLatin1Char('0'));
}

class BusyCursor {
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace

void LabelWindow::Print()
{
    if (!desk_.HasPrinter())
        return desk_.Tell(MessageKind::Information,
                          QStringLiteral("Nenhuma impressora foi encontrada neste computador.\n\n"
                                         "Instale uma impressora ou use \"Salvar em PDF\"."));
    QPrinter printer(QPrinter::HighResolution);
    PrepareForLabels(printer, job_);
    if (!desk_.ChoosePrinter(this, printer, static_cast<int>(job_.pages.pages.size())))
        return;
    QString trouble;
    {
        const BusyCursor busy;
        trouble = PrintLabels(printer, job_);
    }
    if (!trouble.isEmpty())
        return desk_.Tell(MessageKind::Critical, trouble);
    status_->setText(QStringLiteral("Enviado para a impressora"));
}

QString LabelWindow::ProposedPath() const
{
    const QString folder = LastFolder().isEmpty() ? DocumentsFolder() : LastFolder();
    return QDir(folder).filePath(FileName(QString::fromStdString(job_.pages.title), day_));
}

void LabelWindow::SavePdf()
{
    const QString path = desk_.AskPdfPath(this, ProposedPath());
    if (path.isEmpty())
        return;
    QString trouble;
    {
        const BusyCursor busy;
        trouble = WriteLabelPdf(job_, path);
    }
    if (!trouble.isEmpty())
        return desk_.Tell(MessageKind::Critical, trouble);
    LastFolder() = QFileInfo(path).absolutePath();
    status_->setText(QStringLiteral("Salvo em %1").arg(QFileInfo(path).fileName()));
    status_->setToolTip(path);
}

} // namespace kova::family
