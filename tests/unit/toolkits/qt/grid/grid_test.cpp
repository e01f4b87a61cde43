#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QRegion>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace kova::qt::test {
namespace {

constexpr Colour Odd = Rgb(242, 242, 242);
constexpr Colour Selected = Rgb(217, 217, 217);

// Adds up what a widget is asked to repaint.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

    QRegion region;
};

class Grid : public QtTest {
protected:
    void SetUp() override
    {
        form_ = Show({Design(WidgetKind::MSFlexGrid, "msfgGrade", 0, 0, 9000, 6000)});
        grid_ = &Bind<MSFlexGrid>(form_, "msfgGrade");
        Fill();
        Settle();
    }

    // One header row of 40 pixels and ten rows of 38; column 1 is hidden.
    void Fill()
    {
        grid_->Redraw(false);
        grid_->FixedCols(0);
        grid_->Rows(11);
        grid_->Cols(3);
        grid_->RowHeight(0, 600);
        grid_->GridLines(0);
        grid_->GridLinesFixed(0);
        grid_->BorderStyle(0);
        grid_->ScrollBars(0);
        grid_->WordWrap(true);
        grid_->BackColorBkg(colours::White);
        grid_->BackColorSel(Selected);
        grid_->ForeColorSel(colours::ButtonText);
        grid_->ColWidth(0, 1500);
        grid_->ColWidth(1, 0);
        grid_->ColWidth(2, 3000);
        for (Long row = 1; row < 11; ++row)
            FillRow(row);
        grid_->Redraw(true);
    }

    void FillRow(Long row)
    {
        grid_->RowHeight(row, 570);
        for (Long col = 0; col < 3; ++col) {
            grid_->Row(row);
            grid_->Col(col);
            grid_->CellBackColor(row % 2 == 1 ? Odd : colours::White);
            grid_->CellForeColor(colours::Red);
        }
    }

    void SelectRow(Long row)
    {
        grid_->SelectionMode(1);
        grid_->Col(0);
        grid_->Row(row);
        grid_->ColSel(2);
    }

    GridCanvas& Canvas() { return dynamic_cast<GridCanvas&>(*WindowOf(*grid_)); }
    QRect Cell(Long row, Long col) { return Canvas().CellArea(row, col); }

    // Pixels of an area that are not of its ground.
    int Ink(const QRect& area)
    {
        const QImage image = Picture(&Canvas());
        const QRgb ground = image.pixel(area.left() + 1, area.top() + 1);
        int ink = 0;
        for (int y = area.top() + 1; y < area.bottom(); ++y) {
            for (int x = area.left() + 1; x < area.right(); ++x)
                ink += image.pixel(x, y) != ground;
        }
        return ink;
    }

    FormRef form_;
    MSFlexGrid* grid_ = nullptr;
};

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
    Settle();
    EXPECT_TRUE(counter.region.isEmpty());
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

TEST_F(Grid, ReadsTheCurrentRowToAssistiveTools)
{
    grid_->TextMatrix(0, 2, "Nome do\r\nAnimal");
    grid_->TextMatrix(2, 2, "Rex");
    grid_->TextMatrix(2, 1, "oculto");
    SelectRow(2);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&Canvas());
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->text(QAccessible::Value).toStdString(), "Nome do Animal: Rex");
    ASSERT_NE(table->tableInterface(), nullptr);
    EXPECT_EQ(table->tableInterface()->columnCount(), 2);
    EXPECT_EQ(table->tableInterface()->rowCount(), 11);
    EXPECT_EQ(table->tableInterface()->cellAt(2, 1)->text(QAccessible::Name).toStdString(), "Rex");
    EXPECT_EQ(table->tableInterface()->selectedRows(), QList<int>{2});
}

TEST_F(Grid, ReadsARowWithTheHeadsOfItsColumnsWhereThereAreSome)
{
    grid_->TextMatrix(0, 2, "Animal");
    grid_->TextMatrix(2, 2, "Rex");
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&Canvas());
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(Canvas().RowAsText(0).toStdString(), "Animal");
    EXPECT_EQ(Canvas().RowAsText(2).toStdString(), "Animal: Rex");
    EXPECT_EQ(Canvas().RowAsText(-1).toStdString(), "");
    EXPECT_EQ(Canvas().RowAsText(11).toStdString(), "");
    grid_->FixedRows(0);
    EXPECT_EQ(Canvas().RowAsText(2).toStdString(), "Rex");
}

TEST_F(Grid, TellsAssistiveToolsOfEachCell)
{
    grid_->TextMatrix(0, 0, "Hora");
    grid_->TextMatrix(0, 2, "Nome do\r\nAnimal");
    grid_->TextMatrix(3, 2, "Rex");
    SelectRow(3);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&Canvas());
    ASSERT_NE(table, nullptr);
    QAccessibleInterface* name = table->tableInterface()->cellAt(3, 1);
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->role(), QAccessible::Cell);
    EXPECT_EQ(name->rect(), QRect(Canvas().mapToGlobal(Cell(3, 2).topLeft()), Cell(3, 2).size()));
    EXPECT_TRUE(name->state().selected);
    EXPECT_FALSE(table->tableInterface()->cellAt(2, 1)->state().selected);
    EXPECT_EQ(name->actionInterface(), nullptr);
    QAccessibleTableCellInterface* place = name->tableCellInterface();
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(place->rowIndex(), 3);
    EXPECT_EQ(place->columnIndex(), 1) << "the hidden column does not count";
    EXPECT_EQ(place->table(), table);
    ASSERT_EQ(place->columnHeaderCells().size(), 1);
    EXPECT_EQ(place->columnHeaderCells().front()->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(place->columnHeaderCells().front()->text(QAccessible::Name), QStringLiteral("Nome do Animal"));
}

TEST_F(Grid, TellsAssistiveToolsNothingOfWhatIsNotThere)
{
    grid_->TextMatrix(10, 2, "Rex");
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&Canvas());
    ASSERT_NE(table, nullptr);
    QAccessibleInterface* cell = table->tableInterface()->cellAt(10, 1);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), QStringLiteral("Rex"));
    EXPECT_EQ(cell->text(QAccessible::Value), QStringLiteral("Rex"));
    EXPECT_EQ(cell->text(QAccessible::Description), QString());
    grid_->Rows(5);
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(cell->text(QAccessible::Name), QString());
    grid_->TextMatrix(0, 0, "Hora");
    EXPECT_EQ(table->tableInterface()->columnDescription(0), QStringLiteral("Hora"));
    grid_->FixedRows(0);
    EXPECT_EQ(table->tableInterface()->columnDescription(0), QString());
    grid_->ColWidth(0, 0);
    grid_->ColWidth(2, 0);
    EXPECT_EQ(table->child(0), nullptr);
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

TEST_F(Grid, TellsAssistiveToolsOfItsCellsAsChildren)
{
    SelectRow(3);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&Canvas());
    EXPECT_EQ(table->childCount(), 22);
    QAccessibleTableInterface* cells = table->tableInterface();
    EXPECT_EQ(table->child(7), cells->cellAt(3, 1));
    EXPECT_EQ(table->indexOfChild(cells->cellAt(3, 1)), 7);
    EXPECT_EQ(table->indexOfChild(table), -1);
    EXPECT_EQ(cells->cellAt(11, 0), nullptr);
    EXPECT_EQ(cells->cellAt(0, 2), nullptr);
    EXPECT_EQ(cells->cellAt(-1, 0), nullptr);
    EXPECT_EQ(cells->selectedCells(),
              (QList<QAccessibleInterface*>{cells->cellAt(3, 0), cells->cellAt(3, 1)}));
    EXPECT_EQ(cells->selectedCellCount(), 2);
    EXPECT_EQ(cells->columnDescription(1), cells->cellAt(0, 1)->text(QAccessible::Name));
}

} // namespace
} // namespace kova::qt::test
