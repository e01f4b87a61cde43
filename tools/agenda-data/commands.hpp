#pragma once

#include "agenda/contracts/date_time.hpp"

#include <ostream>
#include <span>

namespace kova::data {

/// Runs the program: 0 done, 1 the data cannot be read or written, 2 the command line is wrong. What
/// went wrong is written to `error` in Portuguese.
int Run(std::span<const char* const> arguments, Date today, std::ostream& output, std::ostream& error);

} // namespace kova::data
