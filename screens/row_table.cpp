#include "screens/row_table.hpp"

#include <QHeaderView>
#include <QTableView>

#include <algorithm>

namespace kova::screens {

namespace {

constexpr int RowHeight = 28;

} // namespace

QTableView* MakeRowTable(QAbstractItemModel& rows, const QString& name, QWidget* parent)
{
    auto* table = new QTableView(parent);
    table->setModel(&rows);
    table->setAccessibleName(name);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(RowHeight);
    table->horizontalHeader()->setHighlightSections(false);
    return table;
}

void FitColumn(QTableView& table, int column, int room, int widest)
{
    table.resizeColumnToContents(column);
    table.setColumnWidth(column, std::min(table.columnWidth(column) + room, widest));
}

} // namespace kova::screens
