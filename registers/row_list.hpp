#pragma once

#include "family/registers/description/register.hpp"

#include <QString>

#include <span>

class QTableView;
class QWidget;

namespace kova::registers {

class RowModel;

/// A list of those rows, one of which is marked as a whole. `name` is for those who cannot see it.
QTableView* MakeRowList(RowModel& rows, const QString& name, QWidget* parent);

/// Gives every column the room that its texts want, within limits.
void FitColumns(QTableView& list);

/// The columns of prices are there, or not.
void ShowPrices(QTableView& list, std::span<const family::registers::ListColumn> columns, bool areShown);

} // namespace kova::registers
