#include "registers/importing/table.hpp"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

namespace kova::registers {

namespace {

constexpr int RowHeight = 26;
constexpr int WidestColumn = 320;
constexpr int RoomInColumn = 8;

} // namespace

QTableWidget* ReadOnlyTable(const QString& objectName, const QString& name, QWidget* parent)
{
    auto* table = new QTableWidget(parent);
    table->setObjectName(objectName);
    table->setAccessibleName(name);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(RowHeight);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

void FillTable(QTableWidget& table, const QStringList& titles, const std::vector<QStringList>& rows)
{
    table.clear();
    table.setColumnCount(static_cast<int>(titles.size()));
    table.setHorizontalHeaderLabels(titles);
    table.setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table.rowCount(); ++row) {
        const QStringList& cells = rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < table.columnCount(); ++column) {
            auto* item = new QTableWidgetItem(cells.value(column));
            item->setToolTip(cells.value(column));
            table.setItem(row, column, item);
        }
    }
    table.resizeColumnsToContents();
    for (int column = 0; column < table.columnCount(); ++column)
        table.setColumnWidth(column, std::min(table.columnWidth(column) + RoomInColumn, WidestColumn));
}

QString Shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QStringList Shown(const std::vector<std::string>& texts)
{
    QStringList shown;
    for (const std::string& text : texts)
        shown += QString::fromStdString(text);
    return shown;
}

QString Counted(long long count, const char* one, const char* many)
{
    return QStringLiteral("%L1 ").arg(count) + QString::fromUtf8(count == 1 ? one : many);
}

} // namespace kova::registers
