// Reports as files and on printers.

#include "reports/qt/font_metrics.hpp"
#include "reports/qt/output.hpp"
#include "reports/qt/page_painter.hpp"
#include "tests/unit/reports/qt/expected_warning.hpp"
#include "tests/unit/reports/qt/report_samples.hpp"

#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>
#include <string>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kova::qt::test {
namespace {

using namespace paper;

/// No file can grow beyond that many bytes.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*signal_)(int);
    rlimit before_{};
};

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

/// A printing from a window that shows that page (from 0).
Printing From(std::size_t page) { return {page, QStringLiteral("A impressora parou."), QString()}; }

QStringList AllOf(const reports::Document& document)
{
    QStringList pages;
    for (std::size_t page = 1; page <= document.pages.size(); ++page)
        pages += QString::number(page);
    return pages;
}

class ReportOutput : public ::testing::Test {
protected:
    QString File(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

    static QString Run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program.toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    /// The texts of a PDF page by page, each line with single blanks.
    static QStringList TextOf(const QString& path)
    {
        QStringList pages;
        const QString text =
            Run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
        for (const QString& page : text.split(QLatin1Char('\f'), Qt::SkipEmptyParts)) {
            QStringList lines;
            for (const QString& line : page.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
                lines += line.simplified();
            pages += lines.join(QLatin1Char('\n'));
        }
        return pages;
    }

    QTemporaryDir folder_;
};

TEST_F(ReportOutput, HoldsTheWordsOfAPageInReadingOrder)
{
    const auto document = LaidOut(NumberedList(2));
    ASSERT_EQ(WritePdf(document, File("lista.pdf")).toStdString(), "");
    const QStringList pages = TextOf(File("lista.pdf"));
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(pages[0].toStdString(),
              "Patinhas\n"
              "Agendamentos (lista para transportes)\n"
              "Emissão: 20/11/2026\n"
              "Página: 1 de 1\n"
              "Lista completa\n"
              "Hr.ini. Apelido/Nome Fantasia Nome/Razão Social Nome do funcionário\n"
              "Canal de comunicação\n"
              "Hr.fin. Nome do animal Espécie do animal Tipo de serviço Nome do serviço Observação do "
              "agendamento\n"
              "10:15 tutora-1 ação ação\n"
              "ação\n"
              "10:15 animal-1 ação ação ação ação\n"
              "10:15 tutora-2 ação ação\n"
              "ação\n"
              "10:15 animal-2 ação ação ação ação\n"
              "Kovaris Kova");
}

TEST_F(ReportOutput, HasHeadFootAndTheRightNumberOnEachPageOfAThousandAppointments)
{
    const auto document = LaidOut(NumberedList(1000));
    ASSERT_EQ(WritePdf(document, File("lista.pdf")).toStdString(), "");
    const QStringList pages = TextOf(File("lista.pdf"));
    ASSERT_EQ(pages.size(), static_cast<qsizetype>(document.pages.size()));
    QStringList animals;
    for (qsizetype page = 0; page < pages.size(); ++page) {
        const QString& text = pages[page];
        EXPECT_TRUE(text.startsWith(QStringLiteral("Patinhas\nAgendamentos"))) << text.toStdString();
        EXPECT_TRUE(text.contains(QStringLiteral("\nPágina: %1 de %2\n").arg(page + 1).arg(pages.size())))
            << text.toStdString();
        EXPECT_TRUE(text.contains(QStringLiteral("\nEmissão: 20/11/2026\n"))) << text.toStdString();
        EXPECT_TRUE(text.endsWith(QStringLiteral("\nKovaris Kova"))) << text.toStdString();
        static const QRegularExpression animal(QStringLiteral("animal-\\d+"));
        for (auto found = animal.globalMatch(text); found.hasNext();)
            animals += found.next().captured();
    }
    ASSERT_EQ(animals.size(), 1000);
    for (int number = 1; number <= 1000; ++number)
        EXPECT_EQ(animals[number - 1].toStdString(), "animal-" + std::to_string(number));
}

TEST_F(ReportOutput, CarriesItsTitleItsPaperAndItsFonts)
{
    ASSERT_EQ(WritePdf(LaidOut(NumberedList(1)), File("lista.pdf")).toStdString(), "");
    const QString facts = Run(QStringLiteral("pdfinfo"), {File("lista.pdf")}).simplified();
    EXPECT_TRUE(facts.contains(QStringLiteral("Title: Imprimir agendamentos"))) << facts.toStdString();
    EXPECT_TRUE(facts.contains(QStringLiteral("Page size: 842 x 595 pts (A4)"))) << facts.toStdString();
    const QStringList fonts = Run(QStringLiteral("pdffonts"), {File("lista.pdf")})
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                                  .mid(2);
    EXPECT_EQ(fonts.size(), 2);
    for (const QString& font : fonts) {
        const QStringList columns = font.simplified().split(QLatin1Char(' '));
        // embedded, subset, with the way back to characters
        EXPECT_EQ(columns.mid(columns.size() - 5, 3).join(QLatin1Char(' ')).toStdString(), "yes no yes")
            << font.toStdString();
    }
}

TEST_F(ReportOutput, TellsInPortugueseWhyAFileCannotBeWritten)
{
    const auto document = LaidOut(NumberedList(1));
    EXPECT_EQ(WritePdf(document, File("nada/lista.pdf")).toStdString(),
              "Não foi possível salvar o arquivo \"" + File("nada/lista.pdf").toStdString()
                  + "\".\nA pasta não existe.\n\nEscolha outra pasta ou outro nome e salve novamente.");
    EXPECT_TRUE(WritePdf(document, QStringLiteral("/proc/lista.pdf"))
                    .contains(QStringLiteral("A pasta ou o arquivo não permite gravação.")));
    EXPECT_TRUE(WritePdf(document, folder_.path()).contains(QStringLiteral("não permite gravação")));
}

TEST_F(ReportOutput, IsReadByItsOwnerAloneWhateverItReplaces)
{
    constexpr auto Everybody = QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther
        | QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    constexpr auto OfOthers =
        QFileDevice::ReadGroup | QFileDevice::ReadOther | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    const auto document = LaidOut(NumberedList(1));
    for (int times = 0; times < 2; ++times) {
        ASSERT_EQ(WritePdf(document, File("lista.pdf")).toStdString(), "");
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(File("papel.pdf"));
        Prepare(printer, document);
        ASSERT_EQ(Print(printer, document, From(0)).toStdString(), "");
        for (const char* name : {"lista.pdf", "papel.pdf"}) {
            EXPECT_EQ(QFile::permissions(File(name)) & OfOthers, QFileDevice::Permissions()) << name;
            QFile::setPermissions(File(name), Everybody);
        }
    }
}

TEST_F(ReportOutput, LeavesAPipeIntoWhichIsPrintedItsRights)
{
    constexpr mode_t ofTheQueue = 0622;
    constexpr mode_t ofAll = 0777;
    const QByteArray path = QFile::encodeName(File("fila"));
    ASSERT_EQ(mkfifo(path.constData(), ofTheQueue), 0);
    ASSERT_EQ(chmod(path.constData(), ofTheQueue), 0);
    const int queue = open(path.constData(), O_RDONLY | O_NONBLOCK);
    const auto document = LaidOut(NumberedList(1));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("fila"));
    Prepare(printer, document);
    EXPECT_EQ(Print(printer, document, From(0)).toStdString(), "");
    struct stat facts { };
    ASSERT_EQ(stat(path.constData(), &facts), 0);
    EXPECT_EQ(facts.st_mode & ofAll, ofTheQueue);
    std::string begin(4, ' ');
    EXPECT_EQ(read(queue, begin.data(), begin.size()), 4);
    EXPECT_EQ(begin, "%PDF");
    close(queue);
}

TEST_F(ReportOutput, KeepsTheOlderFileWhereTheDiskIsFull)
{
    ASSERT_EQ(WritePdf(LaidOut(NumberedList(1)), File("lista.pdf")).toStdString(), "");
    const QString before = TextOf(File("lista.pdf")).join(QString());
    QString trouble;
    {
        const FullDisk full(2000);
        trouble = WritePdf(LaidOut(NumberedList(300)), File("lista.pdf"));
    }
    EXPECT_TRUE(trouble.contains(QStringLiteral("Não há espaço no disco"))) << trouble.toStdString();
    EXPECT_EQ(TextOf(File("lista.pdf")).join(QString()), before);
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(ReportOutput, PrintsThePagesThatWereAskedFor)
{
    const auto document = LaidOut(NumberedList(30));
    ASSERT_GE(document.pages.size(), 4u);
    struct Case {
        QPrinter::PrintRange range;
        int from;
        int to;
        QStringList pages;
    };
    const Case cases[]{{QPrinter::PageRange, 1, 2, {QStringLiteral("1"), QStringLiteral("2")}},
                       {QPrinter::PageRange, 2, 3, {QStringLiteral("2"), QStringLiteral("3")}},
                       {QPrinter::PageRange, 4, 99, {QStringLiteral("4"), QStringLiteral("5")}},
                       {QPrinter::PageRange, 0, 0, AllOf(document)},
                       {QPrinter::AllPages, 2, 3, AllOf(document)},
                       {QPrinter::CurrentPage, 0, 0, {QStringLiteral("2")}}};
    for (const Case& each : cases) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(File("papel.pdf"));
        Prepare(printer, document);
        printer.setPrintRange(each.range);
        printer.setFromTo(each.from, each.to);
        ASSERT_EQ(Print(printer, document, From(1)).toStdString(), "");
        QStringList printed;
        for (const QString& page : TextOf(File("papel.pdf"))) {
            static const QRegularExpression number(QStringLiteral("Página: (\\d+) de"));
            printed += number.match(page).captured(1);
        }
        EXPECT_EQ(printed, each.pages);
    }
}

TEST_F(ReportOutput, CountsFromTheEdgeOfTheSheetWhateverItsDialogSays)
{
    const auto document = LaidOut(NumberedList(1));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("papel.pdf"));
    Prepare(printer, document);
    EXPECT_TRUE(printer.fullPage()) << "the dialog offers no margins";
    printer.setFullPage(false);
    ASSERT_EQ(Print(printer, document, From(0)).toStdString(), "");
    EXPECT_TRUE(printer.fullPage());
}

TEST_F(ReportOutput, ScalesAPageDownToASmallerSheet)
{
    const auto document = LaidOut(NumberedList(2));
    ASSERT_EQ(WritePdf(document, File("a4.pdf")).toStdString(), "");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("a5.pdf"));
    Prepare(printer, document);
    printer.setPageSize(QPageSize(QPageSize::A5));
    ASSERT_EQ(Print(printer, document, From(0)).toStdString(), "");
    const QString facts = Run(QStringLiteral("pdfinfo"), {File("a5.pdf")}).simplified();
    EXPECT_TRUE(facts.contains(QStringLiteral("Page size: 595 x 420 pts (A5)"))) << facts.toStdString();
    EXPECT_EQ(TextOf(File("a5.pdf")), TextOf(File("a4.pdf")));
}

TEST_F(ReportOutput, IsPrintedInItsOwnSizeOnItsOwnPaperAlone)
{
    const auto document = LaidOut(NumberedList(1));
    Printing ownSize = From(0);
    ownSize.otherPaper = QStringLiteral("Outro papel.");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("papel.pdf"));
    Prepare(printer, document);
    EXPECT_EQ(Print(printer, document, ownSize).toStdString(), "");
    // As wide as A4 and higher.
    printer.setPageSize(QPageSize(QPageSize::Folio));
    EXPECT_EQ(Print(printer, document, ownSize).toStdString(), "Outro papel.");
}

TEST_F(ReportOutput, TellsOfAPrinterThatDoesNotTakeTheJob)
{
    const ExpectedWarning warning("QPainter::begin(): Returned false");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("nada/papel.pdf"));
    EXPECT_TRUE(
        Print(printer, LaidOut(NumberedList(1)), From(0)).startsWith(QStringLiteral("A impressora parou.")));
}

TEST_F(ReportOutput, TellsOfAPrinterThatVanishesInTheMiddleOfTheJob)
{
    const auto document = LaidOut(NumberedList(30));
    ASSERT_EQ(document.pages.size(), 5u);
    VanishingPrinter whole(File("papel.pdf"), 4);
    Prepare(whole, document);
    EXPECT_EQ(Print(whole, document, From(0)).toStdString(), "");
    VanishingPrinter printer(File("meio.pdf"), 2);
    Prepare(printer, document);
    EXPECT_TRUE(Print(printer, document, From(0)).startsWith(QStringLiteral("A impressora parou.")));
}

// Of one page the printing itself tells nothing; of many it notices on the way.
TEST_F(ReportOutput, TellsOfAPrintFileThatCouldNotBeWrittenToItsEnd)
{
    for (const int rows : {1, 300}) {
        const auto document = LaidOut(NumberedList(rows));
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(File("papel.pdf"));
        Prepare(printer, document);
        const FullDisk full(2000);
        EXPECT_TRUE(Print(printer, document, From(0)).startsWith(QStringLiteral("A impressora parou.")))
            << rows;
    }
}

TEST_F(ReportOutput, DrawsInkWhereTheLayoutPutsIt)
{
    const auto document =
        LaidOut(FilledReport(agenda::DesenhoDedrFichaDoAgendamentoParaTransporte(), Filling::Short, 1));
    const QImage picture = PictureOf(document, 0, 144);
    EXPECT_EQ(picture.size(), QSize(1191, 1684));
    const auto at = [&](double x, double y) {
        return QColor(picture.pixel(QPoint(int(x / 10), int(y / 10))));
    };
    // The grey band of "Cliente:", beside its text and beside itself.
    EXPECT_EQ(at(850 + 227 + 2300, 850 + 1710 + 265 + 120), QColor(128, 128, 128));
    EXPECT_EQ(at(850 + 227 + 2500, 850 + 1710 + 265 + 120), QColor(Qt::white));
    // The rule of the page head.
    EXPECT_LT(at(850 + 5000, 850 + 1707 + 8).lightness(), 100);
}

TEST_F(ReportOutput, DrawsEachTextOnce)
{
    reports::Item text;
    text.text = "Rex";
    text.font = {12, false};
    text.lines = {{"Rex", 300, 150, 600}};
    const reports::Document document{"", 3000, 1500, 1, {{{text}}}};
    constexpr double dots = 144;
    QImage expected(300, 150, QImage::Format_RGB32);
    expected.fill(Qt::white);
    {
        QPainter painter(&expected);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.scale(dots / TwipsOfInch, dots / TwipsOfInch);
        painter.setFont(PageFont(text.font));
        painter.drawText(QPointF(300, 150 + AscentOf(text.font)), QStringLiteral("Rex"));
    }
    EXPECT_EQ(PictureOf(document, 0, dots), expected);
}

} // namespace
} // namespace kova::qt::test
