#pragma once

#include "family/data/stores/waiting_list.hpp"
#include "family/waiting/who_fits.hpp"

#include <QString>
#include <QStringList>

namespace kova::family {
class Database;
}

namespace kova::waiting {

/// The columns of the list of those who wait, and what stands in them. Fails with a DatabaseFailure.
QStringList ColumnsOfWaiting(bool withPlace);
QStringList CellsOf(family::Database& database, const family::WaitingEntry& entry, const DateTime& now);
/// "ter. 01/12/2026, das 09:00 às 10:15, com Bia (Banho)".
QString TextOfPlace(family::Database& database, const family::waiting::WaitingFit& fit);
/// "Paçoca, de Ana Lima".
QString WhoWaits(family::Database& database, const family::WaitingEntry& entry);

/// "seg, qua e sex"; "todos os dias".
QString TextOfWeekdays(const std::string& digits);

} // namespace kova::waiting
