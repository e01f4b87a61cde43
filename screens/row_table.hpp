#pragma once

#include <QString>

class QAbstractItemModel;
class QTableView;
class QWidget;

namespace kova::screens {

/// A table of rows that are read, one of which is marked as a whole. `name` is for those who cannot see it.
QTableView* MakeRowTable(QAbstractItemModel& rows, const QString& name, QWidget* parent);

/// Gives the column the room that its texts want and `room` pixels more, at most `widest`.
void FitColumn(QTableView& table, int column, int room, int widest);

} // namespace kova::screens
