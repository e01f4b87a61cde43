#include "bench/floor_view.hpp"

#include <QPainter>

namespace kova::bench {

namespace {

constexpr int RowHeight = 38;
constexpr int HeaderHeight = 47;
constexpr int FontPixels = 15;
constexpr int LabelFontPixels = 12;
constexpr int CellMargin = 6;
constexpr QSize LabelSize(120, 22);

struct StatusLabel {
    const char* text;
    QColor ground;
    QColor ink;
};

const StatusLabel* LabelOf(int status)
{
    static const std::array<StatusLabel, 4> labels{{
        {"Agendado", QColor(219, 234, 254), QColor(29, 78, 176)},
        {"Atendido", QColor(214, 243, 224), QColor(18, 104, 52)},
        {"Cancelado", QColor(253, 226, 226), QColor(168, 36, 36)},
        {"At. pré-venda", QColor(236, 226, 252), QColor(98, 48, 168)},
    }};
    return status < 1 || status > 4 ? nullptr : &labels[static_cast<std::size_t>(status - 1)];
}

QFont FontOfSize(int pixels, bool bold)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

int FlagsOf(int column)
{
    const bool centred = VisibleColumns[static_cast<std::size_t>(column)].centred;
    return (centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter | Qt::TextWordWrap;
}

QColor InkOf(int column) { return column == NumberColumn ? QColor(128, 128, 128) : QColor(0, 0, 0); }

void PaintLabel(QPainter& painter, const QRect& cell, const StatusLabel& label, const QFont& font)
{
    QRect place(QPoint(), LabelSize);
    place.moveCenter(cell.center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(label.ground);
    painter.drawRoundedRect(place, LabelSize.height() / 2, LabelSize.height() / 2);
    painter.setPen(label.ink);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignCenter, QString::fromUtf8(label.text));
}

} // namespace

void PageModel::Show(std::vector<FloorRow> rows)
{
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

QVariant PageModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    return rows_[static_cast<std::size_t>(index.row())].texts[static_cast<std::size_t>(index.column())];
}

QVariant PageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return QString::fromUtf8(VisibleColumns[static_cast<std::size_t>(section)].title);
}

CellDelegate::CellDelegate(const PageModel& page) : page_(page), labelFont_(FontOfSize(LabelFontPixels, true))
{
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    painter->fillRect(option.rect, index.row() % 2 == 0 ? QColor(242, 242, 242) : QColor(255, 255, 255));
    if (index.column() == StatusColumn) {
        if (const StatusLabel* label = LabelOf(page_.StatusOf(index.row())))
            PaintLabel(*painter, option.rect, *label, labelFont_);
        return;
    }
    painter->setPen(InkOf(index.column()));
    painter->setFont(option.font);
    painter->drawText(option.rect.adjusted(CellMargin, 1, -CellMargin, -1), FlagsOf(index.column()),
                      index.data().toString());
}

FloorHeader::FloorHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setFont(FontOfSize(FontPixels, true));
    setFixedHeight(HeaderHeight);
}

void FloorHeader::paintSection(QPainter* painter, const QRect& area, int section) const
{
    painter->fillRect(area, Qt::white);
    painter->setPen(InkOf(section));
    painter->setFont(font());
    painter->drawText(area.adjusted(CellMargin, 1, -CellMargin, -1), FlagsOf(section),
                      model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
}

FloorView::FloorView(int width)
{
    setHorizontalHeader(new FloorHeader(this));
    setModel(&page_);
    setItemDelegate(&delegate_);
    setFont(FontOfSize(FontPixels, false));
    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(RowHeight);
    int left = width;
    for (const VisibleColumn& column : VisibleColumns)
        left -= column.width;
    for (std::size_t column = 0; column < VisibleColumns.size(); ++column) {
        const int own = VisibleColumns[column].width;
        setColumnWidth(static_cast<int>(column), own > 0 ? own : left);
    }
}

} // namespace kova::bench
