#include "registers/row_model.hpp"

#include "family/data/engine/database_failure.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <algorithm>
#include <span>

namespace kova::registers {

namespace {

/// As many as most windows show: whoever searches waits for them at every key.
constexpr int PageSize = 40;

} // namespace

RowModel::RowModel(const RowSource& of, const Desk& desk, QObject* parent)
    : QAbstractTableModel(parent), source_(of), desk_(desk)
{
}

void RowModel::Show(std::vector<family::Key> keys)
{
    beginResetModel();
    keys_ = std::move(keys);
    read_.clear();
    endResetModel();
}

family::Key RowModel::KeyAt(int row) const
{
    return row >= 0 && row < rowCount() ? keys_[static_cast<std::size_t>(row)] : 0;
}

int RowModel::RowOf(family::Key key) const
{
    const auto found = std::find(keys_.begin(), keys_.end(), key);
    return found == keys_.end() ? -1 : static_cast<int>(found - keys_.begin());
}

int RowModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(keys_.size());
}

int RowModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(source_.ListColumns().size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const
{
    const auto column = static_cast<std::size_t>(index.column());
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter
                                | (source_.ListColumns()[column].number ? Qt::AlignRight : Qt::AlignLeft));
    const bool isShown = role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::ForegroundRole
        || role == Qt::AccessibleTextRole;
    if (!isShown)
        return {};
    const ListRow* row = RowAt(index.row());
    if (row == nullptr)
        return {};
    if (role == Qt::ForegroundRole)
        return row->active ? QVariant() : QVariant(qt::look::DisabledInk);
    const QString text = QString::fromStdString(row->cells[column]);
    // Who cannot see the colour hears of it at the row's first cell.
    if (role == Qt::AccessibleTextRole && column == 0 && !row->active)
        return text + QStringLiteral(" (não ativo)");
    return text;
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const auto& column = source_.ListColumns()[static_cast<std::size_t>(section)];
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter | (column.number ? Qt::AlignRight : Qt::AlignLeft));
    if (role != Qt::DisplayRole)
        return {};
    return QString::fromUtf8(column.label.data(), static_cast<qsizetype>(column.label.size()));
}

const RowModel::ListRow* RowModel::RowAt(int row) const
{
    const family::Key key = KeyAt(row);
    auto found = read_.find(key);
    if (found == read_.end()) {
        ReadPageOf(row);
        found = read_.find(key);
    }
    return found == read_.end() || found->second.cells.empty() ? nullptr : &found->second;
}

// A view asks while it paints, where nothing may be thrown: what could not be read stays blank until the list
// is found anew.
void RowModel::ReadPageOf(int row) const
{
    const int first = row / PageSize * PageSize;
    const auto count = static_cast<std::size_t>(std::min(PageSize, rowCount() - first));
    const auto keys = std::span(keys_).subspan(static_cast<std::size_t>(first), count);
    for (const family::Key key : keys)
        read_.try_emplace(key);
    try {
        for (ListRow& one : source_.Rows(*desk_.database, keys))
            read_[one.key] = std::move(one);
    } catch (const family::DatabaseFailure&) {
        return;
    }
}

} // namespace kova::registers
