#include "tests/unit/toolkits/qt/grid/grid_fixture.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace kova::qt::test {
namespace {

TEST_F(Grid, PaintsEachCellOnItsOwnGround)
{
    const QImage image = Picture(&Canvas());
    EXPECT_EQ(image.pixelColor(Cell(1, 0).center()), QColor(242, 242, 242));
    EXPECT_EQ(image.pixelColor(Cell(2, 0).center()), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(Cell(3, 2).center()), QColor(242, 242, 242));
}

TEST_F(Grid, PaintsTheTextOfACellInItsColourAndNoOtherCell)
{
    EXPECT_EQ(Ink(Cell(4, 2)), 0);
    grid_->TextMatrix(4, 2, "Banho");
    EXPECT_GT(Ink(Cell(4, 2)), 50);
    EXPECT_EQ(Ink(Cell(4, 0)), 0);
    EXPECT_EQ(Ink(Cell(5, 2)), 0);
    const QImage image = Picture(&Canvas());
    bool red = false;
    for (int x = Cell(4, 2).left(); x < Cell(4, 2).right(); ++x) {
        for (int y = Cell(4, 2).top(); y < Cell(4, 2).bottom(); ++y)
            red = red || image.pixelColor(x, y) == QColor(Qt::red);
    }
    EXPECT_TRUE(red);
}

TEST_F(Grid, RulesItsCellsAndItsHeaderEachWhereItIsTold)
{
    const auto isRuled = [&](Long row) {
        const QRect cell = Cell(row, 0);
        const QImage shown = Picture(&Canvas());
        const bool isRuledBelow = shown.pixelColor(cell.center().x(), cell.bottom()) == QColor(Qt::red);
        EXPECT_EQ(shown.pixelColor(cell.right(), cell.center().y()) == QColor(Qt::red), isRuledBelow);
        return isRuledBelow;
    };
    grid_->GridColor(Rgb(255, 0, 0));
    grid_->GridColorFixed(Rgb(255, 0, 0));
    for (const bool cells : {false, true}) {
        for (const bool header : {false, true}) {
            grid_->GridLines(cells ? 1 : 0);
            grid_->GridLinesFixed(header ? 1 : 0);
            EXPECT_EQ(isRuled(2), cells);
            EXPECT_EQ(isRuled(0), header);
        }
    }
}

TEST_F(Grid, LeavesNoInkOfAHiddenColumn)
{
    EXPECT_EQ(Cell(2, 1).width(), 0);
    const QImage before = Picture(&Canvas());
    grid_->TextMatrix(2, 1, "nunca visto");
    EXPECT_EQ(Picture(&Canvas()), before);
}

TEST_F(Grid, BreaksAHeaderIntoItsTwoLines)
{
    grid_->TextMatrix(0, 2, "Nome do\r\nAnimal");
    const QRect area = Cell(0, 2);
    const QRect upper(area.left(), area.top(), area.width(), area.height() / 2);
    const QRect lower = upper.translated(0, area.height() / 2);
    EXPECT_GT(Ink(upper), 30);
    EXPECT_GT(Ink(lower), 30);
}

TEST_F(Grid, KeepsALongTextInsideItsCell)
{
    Text text;
    for (int word = 0; word < 60; ++word)
        text += "comprido ";
    grid_->TextMatrix(4, 2, text);
    EXPECT_GT(Ink(Cell(4, 2)), 200);
    EXPECT_EQ(Ink(Cell(3, 2)), 0);
    EXPECT_EQ(Ink(Cell(5, 2)), 0);
    EXPECT_EQ(Ink(Cell(4, 0)), 0);
}

TEST_F(Grid, PaintsThePictureOfACell)
{
    grid_->Row(2);
    grid_->Col(2);
    grid_->CellPictureAlignment(4);
    grid_->CellPicture(kova::Picture{"etiqueta_agendado"});
    EXPECT_GT(Ink(Cell(2, 2)), 1000);
    grid_->CellPicture({});
    EXPECT_EQ(Ink(Cell(2, 2)), 0);
}

TEST_F(Grid, HighlightsTheSelectedRow)
{
    SelectRow(3);
    const QImage image = Picture(&Canvas());
    EXPECT_EQ(image.pixelColor(Cell(3, 2).center()), QColor(217, 217, 217));
    EXPECT_EQ(image.pixelColor(Cell(4, 2).center()), QColor(Qt::white));
}

TEST_F(Grid, RepaintsTwoRowsWhenTheCursorGoesToTheNextRow)
{
    SelectRow(3);
    Settle();
    PaintCounter counter(Canvas());
    grid_->Row(4);
    grid_->ColSel(2);
    Settle();
    ASSERT_FALSE(counter.region.isEmpty());
    const QRect two = Canvas().RowArea(3).united(Canvas().RowArea(4));
    EXPECT_TRUE(QRegion(two).united(counter.region) == QRegion(two));
}

TEST_F(Grid, PaintsNothingNewWhileRedrawIsFalse)
{
    PaintCounter counter(Canvas());
    grid_->Redraw(false);
    for (Long row = 1; row < 11; ++row)
        grid_->TextMatrix(row, 2, "novo");
    grid_->Left(150);
    Settle();
    EXPECT_TRUE(counter.region.isEmpty()) << "what was there stays, also where the grid is moved";
    grid_->Redraw(true);
    Settle();
    EXPECT_FALSE(counter.region.isEmpty());
    EXPECT_GT(Ink(Cell(1, 2)), 20);
}

TEST_F(Grid, TellsMouseMovesInTwipsAtTheMiddleOfAPixel)
{
    Twips x = 0;
    Twips y = 0;
    grid_->OnMouseMove([&](Integer, Integer, Twips atX, Twips atY) {
        x = atX;
        y = atY;
    });
    MoveMouse(&Canvas(), QPoint(20, 100));
    EXPECT_FLOAT_EQ(x, 307.5);
    EXPECT_FLOAT_EQ(y, 1507.5);
}

// The list's header is no whole number of pixels high, and the list reckons the row under the mouse by
// itself.
TEST_F(Grid, SelectsAtEachPixelTheRowThatTheListReckonsUnderTheMouse)
{
    grid_->RowHeight(0, 700);
    long reckoned = 0;
    grid_->OnMouseMove([&](Integer, Integer, Twips, Twips y) { reckoned = std::lrint((y + 150) / 570 - 1); });
    for (int y = 47; y < 47 + 5 * 38; ++y) {
        MoveMouse(&Canvas(), QPoint(20, y));
        QTest::mousePress(&Canvas(), Qt::LeftButton, {}, QPoint(20, y));
        QTest::mouseRelease(&Canvas(), Qt::LeftButton, {}, QPoint(20, y));
        EXPECT_EQ(grid_->Row(), reckoned) << y;
    }
}

TEST_F(Grid, MovesTheCursorByArrowKeysAndPressesByEnter)
{
    int clicks = 0;
    grid_->OnClick([&] { ++clicks; });
    grid_->SetFocus();
    grid_->Row(1);
    Press(&Canvas(), Qt::Key_Down);
    Press(&Canvas(), Qt::Key_Down);
    EXPECT_EQ(grid_->Row(), 3);
    Press(&Canvas(), Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Grid, IsPressedOnceByTheSpaceBarHoweverLongItIsHeld)
{
    int clicks = 0;
    grid_->OnClick([&] { ++clicks; });
    grid_->SetFocus();
    grid_->Row(1);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QApplication::sendEvent(&Canvas(), &held);
    EXPECT_EQ(clicks, 0);
    Press(&Canvas(), Qt::Key_X, QStringLiteral("x"));
    EXPECT_EQ(clicks, 0);
    Press(&Canvas(), Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Grid, IsNotPressedByTheOtherButton)
{
    int clicks = 0;
    grid_->OnClick([&] { ++clicks; });
    grid_->Row(1);
    const QPoint place = Cell(3, 0).center();
    QTest::mousePress(&Canvas(), Qt::RightButton, {}, place);
    QTest::mouseRelease(&Canvas(), Qt::RightButton, {}, place);
    EXPECT_EQ(grid_->Row(), 1);
    QTest::mousePress(&Canvas(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(&Canvas(), Qt::RightButton, {}, place);
    EXPECT_EQ(grid_->Row(), 3);
    EXPECT_EQ(clicks, 0);
    QTest::mouseRelease(&Canvas(), Qt::LeftButton, {}, place);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Grid, ShowsByABarInWhichRowTheKeysAre)
{
    grid_->Row(2);
    Canvas().setFocus();
    const auto edgeOf = [&](Long row) {
        return Picture(&Canvas()).pixelColor(Cell(row, 0).left() + 1, Cell(row, 0).center().y());
    };
    EXPECT_EQ(edgeOf(2), look::Accent);
    EXPECT_NE(edgeOf(3), look::Accent);
    Canvas().clearFocus();
    EXPECT_NE(edgeOf(2), look::Accent);
    grid_->Row(0);
    Canvas().setFocus();
    EXPECT_NE(edgeOf(0), look::Accent) << "a header";
}

TEST_F(Grid, HasABarOnlyWhereRowsAreOutOfSight)
{
    const auto hasBar = [&] {
        for (const QScrollBar* bar : Canvas().findChildren<QScrollBar*>())
            if (bar->isVisible())
                return true;
        return false;
    };
    for (Long row = 1; row < 11; ++row)
        grid_->RowHeight(row, 540);
    grid_->ScrollBars(2);
    ASSERT_EQ(Cell(10, 0).bottom(), Canvas().height() - 1);
    EXPECT_FALSE(hasBar());
    grid_->Rows(12);
    EXPECT_TRUE(hasBar());
}

TEST_F(Grid, RepaintsTheRowsInSightWhereASelectionReachesBeyondBothEnds)
{
    grid_->Rows(200);
    grid_->TopRow(50);
    grid_->Row(2);
    grid_->ColSel(2);
    grid_->TopRow(50);
    Settle();
    PaintCounter counter(Canvas());
    grid_->TextMatrix(2, 2, "Rex");
    Settle();
    EXPECT_TRUE(counter.region.isEmpty()) << "out of sight";
    grid_->RowSel(190);
    Settle();
    EXPECT_TRUE(counter.region.contains(Canvas().RowArea(55).center()));
}

TEST_F(Grid, ShowsNoHalfFilledCells)
{
    grid_->Redraw(false);
    grid_->BackColorBkg(Rgb(0, 255, 0));
    const QImage shown = Picture(&Canvas());
    EXPECT_EQ(shown.pixelColor(20, 100), QColor(Qt::green));
    EXPECT_EQ(shown.pixelColor(20, 20), QColor(Qt::green));
}

TEST_F(Grid, AlignsTextsToTheCornersOfTheirCells)
{
    grid_->TextMatrix(2, 2, "Rex");
    const auto inkOf = [&](Integer alignment) {
        grid_->ColAlignment(2, alignment);
        const QImage image = Picture(&Canvas()).copy(Cell(2, 2));
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != QColor(Qt::white))
                    ink |= QRect(x, y, 1, 1);
        return ink;
    };
    const QRect leftTop = inkOf(0);
    const QRect rightBottom = inkOf(8);
    const QRect general = inkOf(9);
    EXPECT_LT(leftTop.top(), general.top());
    EXPECT_EQ(leftTop.left(), general.left());
    EXPECT_GT(rightBottom.left(), general.left());
    EXPECT_GT(rightBottom.top(), general.top());
}

TEST_F(Grid, ResizesAColumnByDraggingItsHeaderEdge)
{
    grid_->AllowUserResizing(1);
    const QPoint edge(100, 10);
    QMouseEvent down(QEvent::MouseButtonPress, edge, Canvas().mapToGlobal(QPointF(edge)), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Canvas(), &down);
    MoveMouse(&Canvas(), QPoint(140, 10));
    EXPECT_EQ(grid_->ColWidth(0), 2100);
}

TEST_F(Grid, OffersTheEdgeOfAColumnWithinFourPixels)
{
    const auto isOffered = [&](int x, int y = 10) {
        MoveMouse(&Canvas(), QPoint(x, y));
        return Canvas().cursor().shape() == Qt::SplitHCursor;
    };
    EXPECT_FALSE(isOffered(100));
    grid_->AllowUserResizing(1);
    EXPECT_FALSE(isOffered(100, 100)) << "below the header";
    EXPECT_FALSE(isOffered(95));
    EXPECT_TRUE(isOffered(96));
    EXPECT_TRUE(isOffered(104));
    EXPECT_FALSE(isOffered(105));
}

TEST_F(Grid, TellsATextInAToolTipOnlyWhereItsCellMayCutIt)
{
    Canvas().window()->setToolTip(QStringLiteral("Agenda"));
    const auto tipOver = [&](const QPoint& place) {
        QToolTip::showText(QPoint(), QStringLiteral("nenhuma"));
        QHelpEvent help(QEvent::ToolTip, place, Canvas().mapToGlobal(place));
        QCoreApplication::sendEvent(&Canvas(), &help);
        return QToolTip::text();
    };
    // Widths are counted in parts of a pixel; that many of one letter are whole pixels wide.
    const QString text(64, QLatin1Char('i'));
    const QFont font = MakeFont(grid_->FontName(), grid_->FontSize());
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    ASSERT_EQ(width, std::floor(width));
    constexpr double beside = 12;
    grid_->TextMatrix(2, 2, text.toStdString());
    grid_->ColWidth(2, static_cast<Long>((width + beside - 1) * TwipsOfPixel));
    EXPECT_EQ(tipOver(Cell(2, 2).center()), text);
    grid_->TextMatrix(0, 2, text.toStdString());
    EXPECT_NE(tipOver(Cell(0, 2).center()), text) << "a header";
    EXPECT_NE(tipOver(QPoint(Canvas().width() - 2, Canvas().height() - 2)), text) << "beside the cells";
    grid_->ColWidth(2, static_cast<Long>((width + beside) * TwipsOfPixel));
    EXPECT_NE(tipOver(Cell(2, 2).center()), text);
    EXPECT_NE(tipOver(Cell(2, 2).center()), QStringLiteral("Agenda"));
}

TEST_F(Grid, ScrollsFiftyThousandRowsByTheWheel)
{
    grid_->Rows(50001);
    grid_->ScrollBars(2);
    Settle();
    const QPoint place(50, 100);
    QWheelEvent wheel(place, Canvas().mapToGlobal(QPointF(place)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Canvas(), &wheel);
    EXPECT_EQ(grid_->TopRow(), 4);
    grid_->TopRow(49990);
    grid_->TextMatrix(49990, 2, "fim");
    Settle();
    EXPECT_GT(Ink(Cell(49990, 2)), 10);
}

TEST_F(Grid, HasABorderWhereItIsTold)
{
    const auto edge = [&] { return Picture(&Canvas()).pixelColor(0, Cell(2, 0).center().y()); };
    EXPECT_NE(edge(), look::Border);
    grid_->BorderStyle(1);
    EXPECT_EQ(edge(), look::Border);
}

TEST_F(Grid, FramesTheChosenRowAtItsEdges)
{
    ControlDesign design = Design(WidgetKind::MSFlexGrid, "msfgGrade", 0, 0, 9000, 6000);
    design.selectionMode = 1;
    form_ = Show({design});
    grid_ = &Bind<MSFlexGrid>(form_, "msfgGrade");
    Fill();
    SelectRow(2);
    const QImage shown = Picture(&Canvas());
    const QRect row(Cell(2, 0).topLeft(), Cell(2, 2).bottomRight());
    for (const QPoint& place : {QPoint(row.left(), row.center().y()), QPoint(row.right(), row.center().y()),
                                QPoint(row.center().x(), row.top()), QPoint(row.center().x(), row.bottom())})
        EXPECT_EQ(shown.pixelColor(place), look::Accent) << place.x() << ' ' << place.y();
}

TEST_F(Grid, LeavesTheWheelToOthersWhereItHasNoBar)
{
    const QPoint place(50, 100);
    QWheelEvent wheel(place, Canvas().mapToGlobal(QPointF(place)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Canvas(), &wheel);
    EXPECT_FALSE(wheel.isAccepted());
}

} // namespace
} // namespace kova::qt::test
