#pragma once

#include "family/registers/description/register.hpp"
#include "registers/desk.hpp"

#include <QAbstractTableModel>

#include <string>
#include <unordered_map>
#include <vector>

namespace kova::registers {

/// Rows that were found. Only their keys are kept; the rows themselves are read as they are looked at, a page
/// at a time.
class RowModel : public QAbstractTableModel {
public:
    using RowSource = family::registers::RowSource;
    using ListRow = family::registers::ListRow;

    RowModel(const RowSource& of, const Desk& desk, QObject* parent);

    /// Shows those in the place of what was shown before.
    void Show(std::vector<family::Key> keys);
    family::Key KeyAt(int row) const;
    /// -1 where it is not among those found.
    int RowOf(family::Key key) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// Null for a row that is gone, or that could not be read.
    const ListRow* RowAt(int row) const;
    void ReadPageOf(int row) const;

    const RowSource& source_;
    const Desk& desk_;
    std::vector<family::Key> keys_;
    /// Those that were looked at.
    mutable std::unordered_map<family::Key, ListRow> read_;
};

} // namespace kova::registers
