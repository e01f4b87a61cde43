// What assistive tools read of a grid.

#include "tests/unit/toolkits/qt/grid/grid_fixture.hpp"

#include <QAccessible>

namespace kova::qt::test {
namespace {

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
    EXPECT_EQ(table->tableInterface()->cellAt(1, 1)->role(), QAccessible::Cell);
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
    EXPECT_TRUE(cell->isValid());
    grid_->Rows(10);
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(cell->text(QAccessible::Name), QString());
    EXPECT_FALSE(cell->state().selected);
    QAccessibleInterface* last = table->tableInterface()->cellAt(2, 1);
    grid_->ColWidth(0, 0);
    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(last->rect(), QRect());
    grid_->ColWidth(0, 1500);
    EXPECT_TRUE(last->isValid());
    grid_->TextMatrix(0, 0, "Hora");
    EXPECT_EQ(table->tableInterface()->columnDescription(0), QStringLiteral("Hora"));
    grid_->FixedRows(0);
    EXPECT_EQ(table->tableInterface()->columnDescription(0), QString());
    grid_->ColWidth(0, 0);
    grid_->ColWidth(2, 0);
    EXPECT_EQ(table->child(0), nullptr);
}

TEST_F(Grid, LetsAssistiveToolsChooseNothingPastItsForm)
{
    SelectRow(3);
    QAccessibleTableInterface* cells = QAccessible::queryAccessibleInterface(&Canvas())->tableInterface();
    EXPECT_FALSE(cells->isColumnSelected(0));
    EXPECT_FALSE(cells->selectRow(4));
    EXPECT_FALSE(cells->selectColumn(0));
    EXPECT_FALSE(cells->unselectRow(3));
    EXPECT_FALSE(cells->unselectColumn(0));
    EXPECT_EQ(cells->selectedRows(), QList<int>{3});
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
