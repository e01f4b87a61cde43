#pragma once

#include "agenda/contracts/widgets.hpp"

#include <string>

namespace kova::host {

/// The first rows of the day that the list's form shows, as a table with aligned columns, headed by the
/// date; then how many the page has beyond them. Where the list shows a message in place of rows, that.
std::string DayAsText(Form& list, Long rows);

} // namespace kova::host
