#pragma once

#include "agenda/contracts/date_time.hpp"

#include <string>
#include <string_view>

namespace kova::family {

/// Dates are kept as "yyyy-mm-dd", moments as "yyyy-mm-dd hh:mm:ss": their order as texts is their order
/// in time.
std::string IsoDate(Date date);
std::string IsoMoment(DateTime moment);

/// A kept date with a time "hh:mm", as they were written.
DateTime ReadIsoMoment(std::string_view isoDate, std::string_view time);

/// Whether a text is a day of the calendar, a time of the day "hh:mm", or a moment, as they are kept.
bool IsIsoDate(std::string_view text);
bool IsIsoTime(std::string_view text);
bool IsIsoMoment(std::string_view text);
/// The same where the distance from Greenwich, as "-03:00", may stand behind it.
bool IsMomentOfZone(std::string_view text);
/// Such a moment without that.
std::string_view WithoutZone(std::string_view isoMoment);
/// A time of the day or "24:00", with which the day ends.
bool IsIsoEndTime(std::string_view text);

/// "dd/mm/yyyy" of a kept date, "dd/mm/yyyy hh:mm:ss" of a kept moment, of whatever zone.
std::string ShownDate(std::string_view isoDate);
std::string ShownMoment(std::string_view isoMoment);

/// "hh:mm" of a number of minutes, hours from 00 upwards without a limit of 24.
std::string ShownDuration(long long minutes);

} // namespace kova::family
