#include "toolkits/qt/grid/grid_accessible.hpp"

#include "toolkits/common/grid/grid.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"
#include "toolkits/qt/look/pictures.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAccessibleWidget>

#include <map>

namespace kova::qt {

namespace {

class GridAccessible;

/// One cell on show. Columns of no width do not exist for it.
class CellAccessible : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    CellAccessible(GridAccessible& grid, Long row, int position) : grid_(grid), row_(row), position_(position)
    {
    }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return position_; }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    Long Column() const;

    GridAccessible& grid_;
    Long row_;
    int position_;
};

class GridAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridAccessible(GridCanvas& canvas) : QAccessibleWidget(&canvas, QAccessible::Table) { }
    ~GridAccessible() override
    {
        for (const auto& cell : cells_)
            QAccessible::deleteAccessibleInterface(cell.second);
    }

    GridCanvas* Canvas() const
    {
        return qobject_cast<QWidget*>(object()) ? static_cast<GridCanvas*>(widget()) : nullptr;
    }
    const toolkit::GridModel& Model() const { return Canvas()->Model(); }
    std::vector<Long> ColumnsOnShow() const;

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* cell) const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override { return columnCount() * selectedRowCount(); }
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return QString(); }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return isRowSelected(Model().Cursor().row) ? 1 : 0; }
    int columnCount() const override { return static_cast<int>(ColumnsOnShow().size()); }
    int rowCount() const override { return Model().RowAxis().Count(); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    // What is selected follows from the grid's cursor, which assistive tools move by keys.
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { }

private:
    mutable std::map<std::pair<int, int>, QAccessible::Id> cells_;
};

std::vector<Long> GridAccessible::ColumnsOnShow() const
{
    std::vector<Long> columns;
    for (Long col = 0; col < Model().ColumnAxis().Count(); ++col) {
        if (Model().ColumnAxis().Size(col) > 0)
            columns.push_back(col);
    }
    return columns;
}

QString GridAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? Canvas()->RowAsText(Model().Cursor().row)
                                      : QAccessibleWidget::text(kind);
}

void* GridAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* GridAccessible::child(int index) const
{
    const int columns = columnCount();
    return columns > 0 ? cellAt(index / columns, index % columns) : nullptr;
}

int GridAccessible::indexOfChild(const QAccessibleInterface* cell) const
{
    const auto* own = dynamic_cast<const CellAccessible*>(cell);
    return own ? own->rowIndex() * columnCount() + own->columnIndex() : -1;
}

QAccessibleInterface* GridAccessible::cellAt(int row, int column) const
{
    if (row < 0 || column < 0 || row >= rowCount() || column >= columnCount())
        return nullptr;
    const auto known = cells_.find({row, column});
    if (known != cells_.end())
        return QAccessible::accessibleInterface(known->second);
    auto* cell = new CellAccessible(const_cast<GridAccessible&>(*this), row, column);
    cells_.emplace(std::pair(row, column), QAccessible::registerAccessibleInterface(cell));
    return cell;
}

QList<QAccessibleInterface*> GridAccessible::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    const Long row = Model().Cursor().row;
    for (int column = 0; isRowSelected(row) && column < columnCount(); ++column)
        cells.append(cellAt(row, column));
    return cells;
}

QString GridAccessible::columnDescription(int column) const
{
    QAccessibleInterface* head = Model().RowAxis().Fixed() > 0 ? cellAt(0, column) : nullptr;
    return head ? head->text(QAccessible::Name) : QString();
}

QList<int> GridAccessible::selectedRows() const
{
    const Long row = Model().Cursor().row;
    return isRowSelected(row) ? QList<int>{row} : QList<int>{};
}

bool GridAccessible::isRowSelected(int row) const
{
    const std::vector<Long> columns = ColumnsOnShow();
    return row >= 0 && row < rowCount() && !columns.empty() && Model().IsHighlighted(row, columns.front());
}

Long CellAccessible::Column() const { return grid_.ColumnsOnShow()[static_cast<std::size_t>(position_)]; }

bool CellAccessible::isValid() const
{
    return grid_.isValid() && row_ < grid_.rowCount() && position_ < grid_.columnCount();
}

QAccessibleInterface* CellAccessible::parent() const { return &grid_; }

QString CellAccessible::text(QAccessible::Text kind) const
{
    if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Value))
        return QString();
    const QString text =
        Lines(grid_.Model().CellText(row_, Column())).replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text.isEmpty() ? PictureText(Picture{grid_.Model().PictureOfCell(row_, Column())}) : text;
}

QRect CellAccessible::rect() const
{
    if (!isValid())
        return QRect();
    const QRect area = grid_.Canvas()->CellArea(row_, Column());
    return QRect(grid_.Canvas()->mapToGlobal(area.topLeft()), area.size());
}

QAccessible::Role CellAccessible::role() const
{
    return row_ < grid_.Model().RowAxis().Fixed() ? QAccessible::ColumnHeader : QAccessible::Cell;
}

QAccessible::State CellAccessible::state() const
{
    QAccessible::State state;
    state.readOnly = true;
    state.selectable = true;
    state.selected = isSelected();
    return state;
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                   : nullptr;
}

bool CellAccessible::isSelected() const { return isValid() && grid_.Model().IsHighlighted(row_, Column()); }

QList<QAccessibleInterface*> CellAccessible::columnHeaderCells() const
{
    if (grid_.Model().RowAxis().Fixed() == 0)
        return {};
    return {grid_.cellAt(0, position_)};
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    auto* canvas = dynamic_cast<GridCanvas*>(object);
    return canvas ? new GridAccessible(*canvas) : nullptr;
}

} // namespace

void InstallGridAccessibility() { QAccessible::installFactory(&MakeInterface); }

} // namespace kova::qt
