#pragma once

#include <string>
#include <string_view>

namespace kova::family::registers {

/// What a button calls the days on which many shops are closed.
inline constexpr std::string_view UsualDaysTitle = "Oferecer dias de cost&ume...";

/// "segunda-feira, 16/02/2026" of "16/02/2026".
std::string DayInWords(const std::string& date);

} // namespace kova::family::registers
