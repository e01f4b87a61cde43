#pragma once

#include "agenda/contracts/value.hpp"

class QWidget;

namespace kova::host {

/// A container that fills a window of the program's own, follows its size and ends with it; always the same
/// for the same window. Null where there is no such window in this thread.
QWidget* ContainerIn(Long window);

} // namespace kova::host
