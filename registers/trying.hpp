#pragma once

#include <functional>

class QWidget;

namespace kova::registers {

/// Runs what needs the database and tells what it reports, over a window. False where it failed.
bool Try(QWidget& over, const std::function<void()>& act);

} // namespace kova::registers
