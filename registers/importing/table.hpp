#pragma once

#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

class QTableWidget;
class QWidget;

namespace kova::registers {

/// A table to be looked at and walked through with the arrows, of that name for those who cannot see it.
QTableWidget* ReadOnlyTable(const QString& objectName, const QString& name, QWidget* parent);

/// Fills it anew.
void FillTable(QTableWidget& table, const QStringList& titles, const std::vector<QStringList>& rows);

QString Shown(std::string_view text);
QStringList Shown(const std::vector<std::string>& texts);

/// "1 linha", "2 linhas"
QString Counted(long long count, const char* one, const char* many);

} // namespace kova::registers
