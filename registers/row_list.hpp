#pragma once

#include <QString>

class QTableView;
class QWidget;

namespace kova::registers {

class RowModel;

/// A list of those rows, one of which is marked as a whole. `name` is for those who cannot see it.
QTableView* MakeRowList(RowModel& rows, const QString& name, QWidget* parent);

/// Gives every column the room that its texts want, within limits.
void FitColumns(QTableView& list);

} // namespace kova::registers
