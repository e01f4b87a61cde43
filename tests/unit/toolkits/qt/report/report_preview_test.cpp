// The preview window.

#include "tests/unit/reports/qt/expected_warning.hpp"
#include "tests/unit/toolkits/qt/report/report_preview_fixture.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

#include <set>

namespace kova::qt::test {
namespace {

TEST_F(Preview, TurnsPagesByKeyAndByButton)
{
    struct Step {
        int key;
        std::string label;
    };
    const std::string last = " de " + std::to_string(Pages());
    ASSERT_GE(Pages(), 4u);
    EXPECT_EQ(Label("pagina"), "Página 1" + last);
    for (const Step& step :
         {Step{Qt::Key_PageDown, "Página 2"}, Step{Qt::Key_PageDown, "Página 3"},
          Step{Qt::Key_PageUp, "Página 2"}, Step{Qt::Key_Home, "Página 1"}, Step{Qt::Key_PageUp, "Página 1"},
          Step{Qt::Key_End, "Página " + std::to_string(Pages())},
          Step{Qt::Key_PageDown, "Página " + std::to_string(Pages())}}) {
        Press(step.key);
        EXPECT_EQ(Label("pagina"), step.label + last);
    }
    Click("Home");
    EXPECT_EQ(Label("pagina"), "Página 1" + last);
    EXPECT_FALSE(Button("PgUp")->isEnabled());
    Click("PgDown");
    EXPECT_EQ(Label("pagina"), "Página 2" + last);
    EXPECT_TRUE(Button("PgUp")->isEnabled());
    Click("End");
    EXPECT_FALSE(Button("PgDown")->isEnabled());
    Click("PgUp");
    EXPECT_TRUE(Button("PgDown")->isEnabled());
}

TEST_F(Preview, TurnsWholePagesAndScrollsByArrowsHoweverLargeItIs)
{
    for (int times = 0; times < 8; ++times)
        Press(Qt::Key_Plus, Qt::ControlModifier);
    const QScrollBar* bar = Canvas().verticalScrollBar();
    const int top = bar->value();
    Press(Qt::Key_Down);
    EXPECT_GT(bar->value(), top);
    Press(Qt::Key_Up);
    EXPECT_EQ(bar->value(), top);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Canvas().CurrentPage(), 1u);
}

TEST_F(Preview, BringsWhatIsFoundIntoSightAcrossToo)
{
    for (int times = 0; times < 8; ++times)
        Press(Qt::Key_Plus, Qt::ControlModifier);
    const QScrollBar* across = Canvas().horizontalScrollBar();
    ASSERT_GT(across->maximum(), 0);
    Type(Search(), QStringLiteral("Nome do funcionário"));
    const int right = across->value();
    EXPECT_GT(right, Canvas().viewport()->width());
    Search()->clear();
    Type(Search(), QStringLiteral("Patinhas"));
    EXPECT_LT(across->value(), right);
}

TEST_F(Preview, DrawsNothingBehindItsLastPage)
{
    const reports::Document one = LaidOut(NumberedList(1));
    ReportCanvas canvas(one, nullptr);
    canvas.resize(1400, 2000);
    canvas.show();
    Settle();
    const QImage picture = Picture(canvas.viewport());
    EXPECT_EQ(picture.pixelColor(700, 100), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(700, 1000), look::Desk);
}

TEST_F(Preview, HasButtonsWithABorderAsWideAsTheirTexts)
{
    EXPECT_EQ(Button("Home")->width(), 34);
    const QFontMetrics metrics(Button("Ctrl+P")->font());
    EXPECT_EQ(Button("Ctrl+P")->width(), metrics.horizontalAdvance(QStringLiteral("Imprimir")) + 46);
    EXPECT_EQ(Picture(Button("Ctrl+P")).pixelColor(20, 0), look::Border);
}

TEST_F(Preview, FollowsTheWheel)
{
    for (int turns = 0; turns < 40; ++turns)
        Wheel(-120, Qt::NoModifier);
    EXPECT_GT(Canvas().CurrentPage(), 0u);
    const double zoom = Canvas().Zoom();
    Wheel(0, Qt::ControlModifier);
    EXPECT_EQ(Canvas().Zoom(), zoom);
    Wheel(120, Qt::ControlModifier);
    EXPECT_GT(Canvas().Zoom(), zoom);
}

TEST_F(Preview, ChangesTheSizeByKey)
{
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Label("tamanho"), "100%");
    Press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Label("tamanho"), "125%");
    Press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(Label("tamanho"), "150%");
    Press(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(Label("tamanho"), "200%");
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Label("tamanho"), "150%");
    for (int presses = 0; presses < 20; ++presses)
        Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Label("tamanho"), "25%");
}

TEST_F(Preview, KeepsThePageWhenItsSizeChanges)
{
    Press(Qt::Key_PageDown);
    Press(Qt::Key_PageDown);
    Press(Qt::Key_Plus, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Canvas().CurrentPage(), 2u);
}

TEST_F(Preview, CountsThePageThatWasAskedForWhereSeveralAreInSight)
{
    const std::string last = "Página " + std::to_string(Pages()) + " de " + std::to_string(Pages());
    for (int presses = 0; presses < 20; ++presses)
        Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_End);
    EXPECT_EQ(Label("pagina"), last);
    Window().resize(1000, 4000);
    Settle();
    EXPECT_EQ(Label("pagina"), last) << "with room for more pages than there are";
}

TEST_F(Preview, FitsTheWidthUntilAnotherSizeIsChosen)
{
    const double narrow = Canvas().Zoom();
    Window().resize(1400, 700);
    Settle();
    EXPECT_GT(Canvas().Zoom(), narrow);
    Press(Qt::Key_0, Qt::ControlModifier);
    Window().resize(900, 700);
    Settle();
    EXPECT_EQ(Label("tamanho"), "100%");
    Press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_LT(Canvas().Zoom(), 1.0);
}

TEST_F(Preview, FindsTextsWithoutRegardToCaseAndAccents)
{
    Press(Qt::Key_F, Qt::ControlModifier);
    QLineEdit* box = Search();
    ASSERT_EQ(Window().focusWidget(), box);
    Type(box, QStringLiteral("ANIMAL-17"));
    EXPECT_EQ(Label("achados"), "1 de 1");
    EXPECT_EQ(Canvas().CurrentPage(), 2u);
    box->clear();
    Type(box, QStringLiteral("emissao"));
    EXPECT_EQ(Label("achados"), "3 de " + std::to_string(Pages())) << "from the page in view on";
    Press(Qt::Key_F3);
    EXPECT_EQ(Canvas().CurrentPage(), 3u);
    Press(Qt::Key_F3, Qt::ShiftModifier);
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Canvas().CurrentPage(), 1u);
    Type(box, QStringLiteral("zzz"));
    EXPECT_EQ(Label("achados"), "Nenhum texto encontrado");
}

TEST_F(Preview, MarksWhatIsFoundWhereItStandsAndTheCurrentOneMore)
{
    const QColor marked(255, 235, 130);
    const QColor current(255, 178, 64);
    const auto count = [&](const QColor& color) {
        const QImage image = Picture(Canvas().viewport());
        int pixels = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                pixels += image.pixelColor(x, y) == color ? 1 : 0;
        return pixels;
    };
    EXPECT_EQ(count(marked) + count(current), 0);
    Press(Qt::Key_F, Qt::ControlModifier);
    Type(Search(), QStringLiteral("ANIMAL-17"));
    ASSERT_EQ(Canvas().CurrentPage(), 2u);
    EXPECT_GT(count(current), 0);
    EXPECT_EQ(count(marked), 0);
    Press(Qt::Key_PageUp);
    Press(Qt::Key_PageUp);
    ASSERT_EQ(Canvas().CurrentPage(), 0u);
    EXPECT_EQ(count(current) + count(marked), 0) << "on another page";
    Search()->clear();
    Type(Search(), QStringLiteral("acao"));
    ASSERT_NE(Label("achados"), "1 de 1");
    EXPECT_GT(count(current), 0);
    EXPECT_GT(count(marked), count(current));
}

TEST_F(Preview, HandsTheFocusOfAButtonThatGoesOutOfUseToThePages)
{
    Button("End")->setFocus();
    Click("End");
    EXPECT_EQ(Window().focusWidget(), &Canvas());
    Button("Home")->setFocus();
    Click("Home");
    EXPECT_EQ(Window().focusWidget(), &Canvas());
    Search()->setFocus();
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Window().focusWidget(), Search());
}

TEST_F(Preview, EmptiesTheSearchByItsCross)
{
    ASSERT_TRUE(Search()->isClearButtonEnabled());
    Type(Search(), QStringLiteral("animal"));
    ASSERT_NE(Label("achados"), "");
    Search()->findChild<QAbstractButton*>()->click();
    EXPECT_EQ(Search()->text(), QString());
}

TEST_F(Preview, EscapeLeavesTheSearchAndThenTheWindow)
{
    Press(Qt::Key_F, Qt::ControlModifier);
    Type(Search(), QStringLiteral("animal"));
    Press(Qt::Key_Escape);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Search()->text().toStdString(), "");
    EXPECT_EQ(Label("achados"), "");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(Preview, SavesAPdfAndSaysSo)
{
    const QTemporaryDir folder;
    Desk().path = folder.filePath(QStringLiteral("dia.pdf"));
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(QFile::exists(Desk().path));
    EXPECT_EQ(Label("situacao"), "Salvo em dia.pdf");
    EXPECT_TRUE(Desk().proposal.endsWith(QStringLiteral("/Imprimir agendamentos 2026-11-20.pdf")))
        << Desk().proposal.toStdString();
    EXPECT_EQ(Desk().told, "");
    EXPECT_EQ(Desk().gone, std::vector<std::string>{"Imprimir agendamentos|" + Desk().path.toStdString()});
}

TEST_F(Preview, GoesOnWhereTheUserThinksBetterOfSavingOrPrinting)
{
    Press(Qt::Key_S, Qt::ControlModifier);
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(Desk().asked, 2);
    EXPECT_EQ(Desk().told, "");
    EXPECT_EQ(Label("situacao"), "");
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(Preview, KeepsTellingWhatWasSavedWhereTheUserThinksBetterOfMore)
{
    const QTemporaryDir folder;
    Desk().path = folder.filePath(QStringLiteral("dia.pdf"));
    Press(Qt::Key_S, Qt::ControlModifier);
    Desk().path.clear();
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Desk().asked, 2);
    EXPECT_EQ(Label("situacao"), "Salvo em dia.pdf");
}

TEST_F(Preview, TellsOfAFolderThatCannotBeWritten)
{
    Desk().path = QStringLiteral("/proc/dia.pdf");
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Desk().told.starts_with("Não foi possível salvar o arquivo")) << Desk().told;
    EXPECT_TRUE(Desk().gone.empty());
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(Preview, TellsThatThereIsNoPrinter)
{
    Desk().hasPrinter = false;
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(Desk().told,
              "Nenhuma impressora foi encontrada neste computador.\n\n"
              "Instale uma impressora ou use \"Salvar em PDF\".");
    EXPECT_EQ(Desk().asked, 0);
}

TEST_F(Preview, PrintsOnThePrinterThatWasChosen)
{
    const QTemporaryDir folder;
    Desk().printTo = folder.filePath(QStringLiteral("papel.pdf"));
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(Desk().gone, std::vector<std::string>{"Imprimir agendamentos|"});
    EXPECT_TRUE(QFile::exists(Desk().printTo));
    EXPECT_EQ(Label("situacao"), "Enviado para a impressora");
}

TEST_F(Preview, TellsOfAPrinterThatVanishes)
{
    const ExpectedWarning warning("QPainter::begin(): Returned false");
    Desk().printTo = QStringLiteral("/proc/nada/papel.pdf");
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(Desk().told.starts_with("A impressora deixou de responder")) << Desk().told;
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(Preview, NamesEveryButtonForAssistiveTools)
{
    for (const auto* button : Window().findChildren<QAbstractButton*>()) {
        if (button->parent() != Search()) {
            EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        }
    }
}

TEST_F(Preview, ReachesEverythingByTab)
{
    std::set<std::string> reached;
    for (int presses = 0; presses < 20; ++presses) {
        Press(Qt::Key_Tab);
        reached.insert(Window().focusWidget()->objectName().toStdString());
    }
    for (const char* name :
         {"Ctrl+P", "Ctrl+S", "PgDown", "End", "Ctrl+-", "Ctrl++", "Ctrl+L", "localizar", "Esc"})
        EXPECT_TRUE(reached.contains(name)) << name;
}

TEST_F(Preview, BeginsAtTheTopAndFitsASmallScreen)
{
    Window().resize(1400, 700);
    Settle();
    EXPECT_EQ(Canvas().verticalScrollBar()->value(), 0);
    EXPECT_LE(Window().minimumSizeHint().width(), 1024);
}

TEST_F(Preview, BreaksItsBarIntoTwoRowsOnANarrowScreen)
{
    const auto rowsAt = [&](int width) {
        Window().resize(width, 480);
        Settle();
        std::set<int> rows;
        for (const auto* button : Window().findChildren<QAbstractButton*>()) {
            if (button->parent() == Search())
                continue;
            EXPECT_LE(button->geometry().right(), width) << button->objectName().toStdString();
            rows.insert(button->y());
        }
        EXPECT_EQ(Window().width(), width);
        return rows.size();
    };
    EXPECT_EQ(rowsAt(1024), 1U);
    EXPECT_EQ(rowsAt(680), 2U);
    EXPECT_EQ(rowsAt(1024), 1U);
}

TEST_F(Preview, ShowsAWholePageByKeyUntilAnotherSizeIsChosen)
{
    Press(Qt::Key_I, Qt::ControlModifier);
    const auto heightOfPage = [&] { return Canvas().Zoom() * 11906 / 15; };
    EXPECT_LE(heightOfPage(), Canvas().viewport()->height());
    Window().resize(1000, 500);
    Settle();
    EXPECT_LE(heightOfPage(), Canvas().viewport()->height());
    Press(Qt::Key_L, Qt::ControlModifier);
    const double wide = Canvas().Zoom();
    Window().resize(1000, 700);
    Settle();
    EXPECT_EQ(Canvas().Zoom(), wide);
}

class ModalPreview : public QtTest { };

TEST_F(ModalPreview, OpensACardAsAWholePageAndAListAsWideAsTheWindow)
{
    for (const ReportDesign* layout : AllLayouts()) {
        const reports::Document document = LaidOut(FilledReport(*layout, Filling::Short, 1));
        ReportDesk desk;
        ReportPreview window(document, desk, Date{2026, 11, 20}, nullptr);
        window.show();
        Settle();
        const double height =
            window.Canvas().Zoom() * static_cast<double>(document.paperHeight) / TwipsOfPixel;
        EXPECT_EQ(height <= window.Canvas().viewport()->height(), !IsList(*layout)) << layout->name;
        EXPECT_EQ(document.pages.size(), 1U);
    }
}

TEST_F(ModalPreview, OpensASquareSheetAsWideAsTheWindow)
{
    constexpr Twips edge = 12000;
    const reports::Document document{"", edge, edge, 1, {reports::Page{}}};
    ReportDesk desk;
    ReportPreview window(document, desk, Date{2026, 11, 20}, nullptr);
    window.show();
    Settle();
    EXPECT_GT(window.Canvas().Zoom() * static_cast<double>(edge) / TwipsOfPixel,
              window.Canvas().viewport()->height());
}

TEST_F(ModalPreview, ShowsTheCaptionMaximisedAndLetsGoOfTheDataWhenClosed)
{
    const Sample sample = NumberedList(3);
    const ReportRef report = toolkit_.CreateReport(sample.design);
    report->Caption("Imprimir agendamentos");
    report->WindowState(ReportWindowState::Maximized);
    report->DataSource(sample.records);
    ASSERT_EQ(sample.records.use_count(), 2);
    std::string title;
    bool isMaximised = false;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        title = window->windowTitle().toStdString();
        isMaximised = window->isMaximized();
        test::Press(window, Qt::Key_Escape);
    });
    report->ShowModal();
    EXPECT_EQ(title, "Imprimir agendamentos");
    EXPECT_TRUE(isMaximised);
    EXPECT_EQ(sample.records.use_count(), 1);
    EXPECT_EQ(report->WindowState(), ReportWindowState::Normal) << "as designed again";
}

TEST_F(ModalPreview, KeepsTheFormsBelowFromTakingInput)
{
    FormRef form = Show({Design(WidgetKind::KVCommandButton, "kvcmdUm", 0, 0, 1500, 510)});
    int clicks = 0;
    dynamic_cast<KVCommandButton&>(form->Control("kvcmdUm")).OnClick([&] { ++clicks; });
    const ReportRef report = toolkit_.CreateReport(NumberedList(1).design);
    QTimer::singleShot(0, qApp, [&] {
        ClickAt(WindowOf(form->Control("kvcmdUm")), QPoint(10, 10));
        test::Press(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    report->ShowModal();
    EXPECT_EQ(clicks, 0);
    ClickAt(WindowOf(form->Control("kvcmdUm")), QPoint(10, 10));
    EXPECT_EQ(clicks, 1);
}

TEST_F(ModalPreview, PassesAFailureOfTheDataOn)
{
    ReportDesign design = NumberedList(1).design;
    const ReportRef report = toolkit_.CreateReport(design);
    const auto records =
        std::make_shared<MemoryRecordSet>(std::vector<Text>{"Outro"}, std::vector<std::vector<Value>>{{"x"}});
    report->DataSource(records);
    EXPECT_THROW(report->ShowModal(), Failure);
    EXPECT_EQ(records.use_count(), 1);
}

} // namespace
} // namespace kova::qt::test
