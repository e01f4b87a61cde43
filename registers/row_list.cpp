#include "registers/row_list.hpp"

#include "registers/row_model.hpp"

#include <QHeaderView>
#include <QTableView>

#include <algorithm>

namespace kova::registers {

namespace {

constexpr int RowHeight = 28;
constexpr int RoomInColumn = 8;
constexpr int WidestColumn = 200;

} // namespace

QTableView* MakeRowList(RowModel& rows, const QString& name, QWidget* parent)
{
    auto* list = new QTableView(parent);
    list->setModel(&rows);
    list->setAccessibleName(name);
    list->setObjectName(QStringLiteral("lista"));
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setShowGrid(false);
    list->setWordWrap(false);
    list->setTabKeyNavigation(false);
    list->verticalHeader()->hide();
    list->verticalHeader()->setDefaultSectionSize(RowHeight);
    list->horizontalHeader()->setHighlightSections(false);
    list->horizontalHeader()->setStretchLastSection(true);
    return list;
}

void ShowPrices(QTableView& list, std::span<const family::registers::ListColumn> columns, bool areShown)
{
    for (std::size_t column = 0; column < columns.size(); ++column)
        list.setColumnHidden(static_cast<int>(column), columns[column].money && !areShown);
}

void FitColumns(QTableView& list)
{
    list.resizeColumnsToContents();
    for (int column = 0; column < list.model()->columnCount(); ++column)
        list.setColumnWidth(column, std::min(list.columnWidth(column) + RoomInColumn, WidestColumn));
}

} // namespace kova::registers
