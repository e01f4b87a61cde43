#pragma once

#include "agenda/contracts/date_time.hpp"

#include <QDate>

namespace kova::timetable {

inline QDate ToQt(Date date) { return {date.year, date.month, date.day}; }

inline Date FromQt(const QDate& date) { return {date.year(), date.month(), date.day()}; }

} // namespace kova::timetable
