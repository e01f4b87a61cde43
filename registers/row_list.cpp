#include "registers/row_list.hpp"

#include "registers/row_model.hpp"
#include "screens/row_table.hpp"

#include <QHeaderView>
#include <QTableView>

namespace kova::registers {

namespace {

constexpr int RoomInColumn = 8;
constexpr int WidestColumn = 200;

} // namespace

QTableView* MakeRowList(RowModel& rows, const QString& name, QWidget* parent)
{
    QTableView* const list = screens::MakeRowTable(rows, name, parent);
    list->setObjectName(QStringLiteral("lista"));
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
    for (int column = 0; column < list.model()->columnCount(); ++column)
        screens::FitColumn(list, column, RoomInColumn, WidestColumn);
}

} // namespace kova::registers
