#pragma once

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTableView>

#include <array>
#include <vector>

namespace kova::bench {

/// A column that the list shows on a wide screen. Width in pixels; 0 takes what the others leave.
struct VisibleColumn {
    const char* title;
    int width;
    bool centred;
};
inline constexpr std::array<VisibleColumn, 8> VisibleColumns{{
    {"Número do\nLançamento", 105, true},
    {"Hora\nInicial", 78, false},
    {"Código do\nCliente", 95, true},
    {"Nome ou\nRazão Social", 336, false},
    {"Nome do\nAnimal", 115, false},
    {"Nome do\nTipo de serviço", 133, false},
    {"Nome do serviço", 0, false},
    {"Situação", 140, true},
}};
inline constexpr int NumberColumn = 0;
inline constexpr int StatusColumn = 7;

/// Texts of a row; the status column's stays empty and shows the label of the status, 1 to 4.
struct FloorRow {
    std::array<QString, VisibleColumns.size()> texts;
    int status = 0;
};

/// A page of rows, as a plain program would keep it.
class PageModel : public QAbstractTableModel {
public:
    void Show(std::vector<FloorRow> rows);
    int StatusOf(int row) const { return rows_[static_cast<std::size_t>(row)].status; }

    int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(rows_.size()); }
    int columnCount(const QModelIndex& = {}) const override
    {
        return static_cast<int>(VisibleColumns.size());
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<FloorRow> rows_;
};

/// Paints what the list paints in a cell: ground by odd and even rows, the text in its colour, broken
/// between words, and the rounded label of the status.
class CellDelegate : public QStyledItemDelegate {
public:
    explicit CellDelegate(const PageModel& page);
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const PageModel& page_;
    QFont labelFont_;
};

/// The list's header: bold, in two lines, on white.
class FloorHeader : public QHeaderView {
public:
    explicit FloorHeader(QWidget* parent);

protected:
    void paintSection(QPainter* painter, const QRect& area, int section) const override;
};

/// A bare table view set up like the list's grid: rows of 38 pixels, no lines, no scroll bars, Arial 11.
class FloorView : public QTableView {
public:
    /// Width of the view in pixels.
    explicit FloorView(int width);
    PageModel& Page() { return page_; }

private:
    PageModel page_;
    CellDelegate delegate_{page_};
};

} // namespace kova::bench
