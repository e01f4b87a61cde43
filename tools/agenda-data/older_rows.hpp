#pragma once

#include <ostream>
#include <string>

namespace kova::data {

/// Tells a line for each stored field of a register that its form would not take today, and at last how many
/// they are. Such rows are not wrong: older rules allowed them, and they stay as they are until somebody
/// changes them. Fails with a DatabaseFailure.
void TellOlderRows(const std::string& source, std::ostream& output);

} // namespace kova::data
