#pragma once

#include "agenda/contracts/value.hpp"

class QString;

namespace kova::qt {

/// A tool tip as Qt shows it: long ones break into lines, without marks that a screen reader would read.
QString ToolTipOf(const Text& text);

} // namespace kova::qt
